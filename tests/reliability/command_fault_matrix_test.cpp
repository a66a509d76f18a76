#include <gtest/gtest.h>

#include <memory>

#include "cli/command_run.h"
#include "files/clone_file.h"
#include "reliability/fault_table.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

struct Operation
{
    Words words;
    bool writes;
};

const Operation kOperations[] = {
    {{"read"}, false},
    {{"write", "--bank=1"}, true},
    {{"verify"}, false},
    {{"raw"}, false},
};

/// One operation with a receiver and a file of its own, so that all can wait for their time-outs at once.
class CommandRun
{
  public:
    explicit CommandRun(const Operation& operation) : operation_(operation)
    {
        const CloneImage image = DemoImage(1);
        before_ = FormatCloneFile(image);
        PutBytes(file_, before_);
        held_ = MemoryFromImage(image);
        receiver_ = std::make_unique<SimSession>(SimOptions{.memory = held_, .link = folder_ / "port"});
    }

    bool IsRaw() const { return operation_.words.front() == "raw"; }

    void Start(const std::vector<Fault>& faults)
    {
        receiver_->SetFaults(faults);
        receiver_->ClearCommandLog();
        Words words = operation_.words;
        words.insert(words.end(), {"--port", folder_ / "port", IsRaw() ? "1000" : file_});
        StartProgram(process_, words);
    }

    void ExpectEnd(const FaultCase& fault)
    {
        SCOPED_TRACE(testing::PrintToString(operation_.words));
        const RunResult run = FinishProgram(process_);
        const char* message = operation_.writes ? fault.writeMessage : fault.readMessage;
        EXPECT_EQ(run.status, message == nullptr ? 0 : 1);
        if (message == nullptr) {
            // A busy machine may let a reply wait for too long, which is told.
            EXPECT_TRUE(run.err.empty() || Has(run.err, "needed more than one attempt\n")) << run.err;
            return;
        }
        EXPECT_TRUE(IsRaw() ||
                    run.err.starts_with(fault.TakesTheLine() ? "COM Port Error: " : "Communication Error: "))
            << run.err;
        EXPECT_TRUE(IsRaw() || Has(run.err, message)) << run.err;
        EXPECT_EQ(Has(run.err, "Sent: "), operation_.writes) << run.err;
        EXPECT_EQ(Bytes(file_), before_);
        if (!operation_.writes) {
            EXPECT_TRUE(receiver_->Memory() == held_);
            EXPECT_LT(receiver_->CommandLog().size(), 100U) << "no minute of memory that nobody keeps";
        }
    }

  private:
    const Operation& operation_;
    const Folder folder_;
    const std::string file_ = folder_ / "radio.RQ5";
    std::string before_;
    ReceiverMemory held_;
    std::unique_ptr<SimSession> receiver_;
    QProcess process_;
};

class CommandFaults : public testing::TestWithParam<FaultCase>
{
};

TEST_P(CommandFaults, InTheMiddleOfEveryOperation)
{
    const FaultCase& fault = GetParam();
    std::vector<std::unique_ptr<CommandRun>> runs;
    for (const Operation& operation : kOperations) {
        runs.push_back(std::make_unique<CommandRun>(operation));
        runs.back()->Start(fault.Faults(runs.back()->IsRaw() ? 0 : 4));
    }
    for (const auto& run : runs)
        run->ExpectEnd(fault);
    for (const auto& run : runs)
        run->Start({});
    for (const auto& run : runs)
        run->ExpectEnd(kFaults[0]);  // the fault is gone
}

INSTANTIATE_TEST_SUITE_P(, CommandFaults, testing::ValuesIn(kFaults),
                         [](const auto& test) { return test.param.Name(); });

}  // namespace
}  // namespace rqm5
