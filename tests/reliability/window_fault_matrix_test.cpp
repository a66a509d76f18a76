#include <gtest/gtest.h>

#include <QComboBox>
#include <fstream>

#include "app/receiver_window_fixture.h"
#include "reliability/fault_table.h"

namespace rqm5 {
namespace {

constexpr const char* kOperations[] = {"mnuReAll",      "mnuWrAll",      "mnuReMemory", "mnuWrMemory",
                                       "mnuReSettings", "mnuWrSettings", "cmbReadBank", "cmbWriteBank"};

class WindowFaults : public ReceiverWindowTest, public testing::WithParamInterface<FaultCase>
{
  protected:
    std::string FileBytes()
    {
        std::ifstream file(Path("kept.RQ5").toStdString(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void ExpectControlsOn()
    {
        for (const char* name : {"mnuFileOpen", "mnuReAll", "mnuWrAll", "mnuToolsOptions"})
            EXPECT_TRUE(Item(name).isEnabled()) << name;
        for (const char* name : {"cmbReadBank", "cmbWriteBank", "cmbRawRead", "txtBank_7"})
            EXPECT_TRUE(Find<QWidget>(name).isEnabled()) << name;
        EXPECT_FALSE(Bar().isVisible());
    }

    void Run(const char* control)
    {
        GoTo(Tab::Bank);
        dialogs_.asked.clear();
        Trigger(control);
        ExpectControlsOn();
    }

    void ExpectMessage(bool writes)
    {
        // A read of everything goes on after failed settings.
        EXPECT_TRUE(dialogs_.asked.size() == 1 || (dialogs_.asked.size() == 2 && !writes));
        for (const Prompt& box : dialogs_.asked) {
            EXPECT_TRUE(box.title == QLatin1String("ERROR") && box.icon == QMessageBox::Critical);
            EXPECT_EQ(box.text.toStdString(),
                      GetParam().TakesTheLine() ? kComPortError : kCommunicationError);
            EXPECT_EQ(box.details.contains(QLatin1String("Sent: ")), writes);
        }
    }
};

TEST_P(WindowFaults, InEveryOperationAreToldAndLeaveEverythingUsable)
{
    Item("mnuReAll").trigger();
    dialogs_.files = {Path("kept.RQ5")};
    Item("mnuFileSaveAs").trigger();
    const std::string kept = FileBytes();
    Find<QComboBox>("cbbBank").setCurrentIndex(1);
    for (const char* control : kOperations) {
        SCOPED_TRACE(control);
        const bool writes = std::string_view(control).find("Wr") != std::string_view::npos;
        const ReceiverMemory before = receiver_.Memory();
        receiver_.SetFaults(GetParam().Faults(4));
        SetTimeOut(std::chrono::milliseconds(10));
        Run(control);
        ExpectMessage(writes);
        EXPECT_TRUE(writes || receiver_.Memory() == before);
        receiver_.SetFaults({});
        port_.SetDevice(receiver_.Device());
        SetTimeOut(RadioLink::kTimeOut);
        Run(control);
        EXPECT_TRUE(dialogs_.asked.empty()) << "the fault is gone";
    }
    EXPECT_EQ(FileBytes(), kept);
}

// One that times out, one that does not, and one that takes the line away; what each fault leads to is the
// line's.
INSTANTIATE_TEST_SUITE_P(, WindowFaults,
                         testing::Values(FaultNamed("drop"), FaultNamed("garble"), FaultNamed("hang-up")),
                         [](const auto& test) { return test.param.Name(); });

}  // namespace
}  // namespace rqm5
