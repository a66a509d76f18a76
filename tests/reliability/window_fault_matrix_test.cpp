#include <QComboBox>
#include <QPlainTextEdit>
#include <fstream>

#include "app/receiver_window_fixture.h"
#include "memory/bank_layout.h"
#include "reliability/fault_table.h"

namespace rqm5 {
namespace {

struct Operation
{
    const char* control;
    bool writes;
    int selector;
};

constexpr Operation kOperations[] = {
    {"mnuReAll", false, kSelectAll},   {"mnuWrAll", true, kSelectAll}, {"mnuReMemory", false, kSelectAll},
    {"mnuWrMemory", true, kSelectAll}, {"mnuReMemory", false, 1},      {"mnuWrMemory", true, 1},
    {"mnuReSettings", false, 1},       {"mnuWrSettings", true, 1},     {"cmbReadBank", false, 1},
    {"cmbWriteBank", true, 1},
};

class WindowFaults : public ReceiverWindowTest, public testing::WithParamInterface<FaultCase>
{
  protected:
    void Break(const FaultCase& fault, int after, bool timesOut)
    {
        receiver_.SetFaults(fault.Faults(after));
        SetTimeOut(timesOut ? std::chrono::milliseconds(10) : RadioLink::kTimeOut);
    }

    void Mend()
    {
        receiver_.SetFaults({});
        port_.SetDevice(receiver_.Device());
        SetTimeOut(RadioLink::kTimeOut);
    }

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

    /// With a short time-out a busy machine may see nothing of a reply of which something was on its way.
    static bool Names(const QString& details, const char* message)
    {
        const bool isCut = std::string_view(message) == "too short";
        return details.contains(QLatin1String(message)) ||
               (isCut && details.contains(QLatin1String("sent nothing")));
    }

    void Try(const Operation& operation, const FaultCase& fault)
    {
        SCOPED_TRACE(std::string(operation.control) + ", " + fault.text);
        Find<QComboBox>("cbbBank").setCurrentIndex(operation.selector);
        GoTo(Tab::Bank);
        dialogs_.asked.clear();
        const ReceiverMemory before = receiver_.Memory();
        const char* message = operation.writes ? fault.writeMessage : fault.readMessage;
        // Where nothing has to time out, nothing shall do so by accident.
        const std::string_view outcome = message != nullptr ? message : "";
        Break(fault, 4, outcome == "too short" || outcome == "sent nothing");
        Trigger(operation.control);
        EXPECT_EQ(dialogs_.asked.empty(), message == nullptr);
        EXPECT_LE(dialogs_.asked.size(), operation.writes ? 1U : 2U)
            << "a write ends at its first failed block";
        for (const Prompt& box : dialogs_.asked) {
            EXPECT_TRUE(box.title == QLatin1String("ERROR") && box.icon == QMessageBox::Critical);
            EXPECT_EQ(box.text.toStdString(), fault.TakesTheLine() ? kComPortError : kCommunicationError);
            EXPECT_TRUE(fault.TakesTheLine() || Names(box.details, message)) << qPrintable(box.details);
            EXPECT_EQ(box.details.contains(QLatin1String("Sent: ")), operation.writes);
        }
        EXPECT_TRUE(operation.writes || receiver_.Memory() == before);
        ExpectControlsOn();
        dialogs_.asked.clear();
        Mend();
        GoTo(Tab::Bank);
        Trigger(operation.control);
        EXPECT_TRUE(dialogs_.asked.empty()) << "the fault is gone";
    }
};

TEST_P(WindowFaults, InTheMiddleOfEveryOperation)
{
    Item("mnuReAll").trigger();
    dialogs_.files = {Path("kept.RQ5")};
    Item("mnuFileSaveAs").trigger();
    const std::string kept = FileBytes();
    for (const Operation& operation : kOperations)
        Try(operation, GetParam());
    EXPECT_EQ(FileBytes(), kept);
}

TEST_P(WindowFaults, ARawReadShowsWhatCameBack)
{
    Item("mnuViewDiagnostics").trigger();
    Find<QLineEdit>("txtRawAddress").setText(QStringLiteral("1000"));
    Break(GetParam(), 0, GetParam().TimesOut());
    Click("cmbRawRead");
    const QString shown = Find<QPlainTextEdit>("txtRawReply").toPlainText();
    EXPECT_EQ(shown.contains(QLatin1String("Frequency: ")), GetParam().raw == ReplyOutcome::Good);
    ExpectControlsOn();
    EXPECT_TRUE(dialogs_.asked.empty());
}

INSTANTIATE_TEST_SUITE_P(, WindowFaults, testing::ValuesIn(kFaults),
                         [](const auto& test) { return test.param.Name(); });

}  // namespace
}  // namespace rqm5
