#include <gmock/gmock.h>

#include <QFile>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTableView>

#include "app/diagnostics/diagnostics_panel.h"
#include "app/window_fixture.h"
#include "image/channel_record.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;

/// The started program with its diagnostics panel open and a receiver on its port.
class DiagnosticsTest : public WindowTest
{
  protected:
    void SetUp() override
    {
        qputenv("RQM5_COM1", receiver_.Device().toLocal8Bit());
        Start();
        qunsetenv("RQM5_COM1");
        Item("mnuViewDiagnostics").trigger();
        ASSERT_TRUE(Find<QWidget>("dckDiagnostics").isVisible());
    }

    std::string Read(const char* address)
    {
        auto& box = Find<QLineEdit>("txtRawAddress");
        box.clear();
        QTest::keyClicks(&box, QString::fromLatin1(address));
        QTest::keyClick(&box, Qt::Key_Return);
        return Find<QPlainTextEdit>("txtRawReply").toPlainText().toStdString();
    }

    std::string LabelText(const char* name) { return Find<QLabel>(name).text().toStdString(); }

    CloneImage image_ = DemoImage(0);
    SimSession receiver_{{.memory = MemoryFromImage(image_)}};
};

TEST_F(DiagnosticsTest, RawReadShowsTheReplyAsReceivedAndWhatItMeans)
{
    const std::string channel = Read("1000");
    EXPECT_THAT(channel, AllOf(HasSubstr("memory row 0"), HasSubstr("QT~F1000R\\r"), HasSubstr(" ms: "),
                               HasSubstr(EncodeMemoryRow(image_, 0).String() + "\\r\\n"),
                               HasSubstr("Frequency: " + image_.MemText[0][kFrequency]),
                               HasSubstr("Step: " + image_.MemText[0][kStep])));
    EXPECT_THAT(Read("0xc30"), AllOf(HasSubstr("0C30: VFO row 3"),
                                     HasSubstr("Frequency: " + image_.VFOText[3][kFrequency])));
    EXPECT_THAT(Read("0040"), AllOf(HasSubstr("settings 1"), Not(HasSubstr("Frequency"))));
    EXPECT_THAT(Read("5b90"), HasSubstr("memory row 1209 (Priority Pr9)"));
    EXPECT_THAT(Read("5BA0"), Not(HasSubstr("row")));
}

TEST_F(DiagnosticsTest, WrongAddressGetsAMessageBesideTheBoxAndIsNotSent)
{
    const struct
    {
        const char* typed;
        const char* message;
    } cases[] = {{"10G0", "hexadecimal"}, {"", "hexadecimal"}, {"0x", "hexadecimal"},
                 {"1001", "last digit"},  {"10000", "FFF0"},   {"-10", "hexadecimal"}};
    for (const auto& one : cases) {
        Read(one.typed);
        EXPECT_THAT(LabelText("lblRawFault"), HasSubstr(one.message)) << one.typed;
    }
    EXPECT_THAT(receiver_.CommandLog(), IsEmpty());
    Read("FFF0");
    Read(" 01000 ");
    EXPECT_THAT(LabelText("lblRawFault"), IsEmpty());
    EXPECT_THAT(receiver_.CommandLog(), testing::ElementsAre("QT~FFFF0R", "QT~F1000R"));
    EXPECT_THAT(Read("1001"), IsEmpty());
}

TEST_F(DiagnosticsTest, RawReadSaysWhatWentWrong)
{
    const struct
    {
        FaultKind fault;
        const char* message;
    } cases[] = {{FaultKind::Silent, "Nothing came back"},
                 {FaultKind::Drop, "only the echo"},
                 {FaultKind::Cut, "too short"},
                 {FaultKind::Garble, "garbled"},
                 {FaultKind::HangUp, "COM Port Error"}};
    for (const auto& one : cases) {
        receiver_.SetFaults({{.kind = one.fault}});
        EXPECT_THAT(Read("1000"), AllOf(HasSubstr(one.message), Not(HasSubstr("Frequency"))));
        EXPECT_TRUE(Find<QPushButton>("cmbRawRead").isEnabled());
        EXPECT_TRUE(Item("mnuReAll").isEnabled());
    }
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(DiagnosticsTest, LinkTestCountsReadsAndErrors)
{
    receiver_.SetFaults({{.kind = FaultKind::Garble, .count = 2, .after = 10}});
    Click("cmbLinkTest");
    EXPECT_EQ(receiver_.CommandLog().size(), 100U);
    EXPECT_THAT(
        LabelText("lblLinkTest"),
        MatchesRegex("100 reads, 2 errors\\. Round trip: lowest [0-9.]+ ms, median [0-9.]+ ms, highest "
                     "[0-9.]+ ms\\."));
    receiver_.SetFaults({{.kind = FaultKind::HangUp, .after = 3}});
    Click("cmbLinkTest");
    EXPECT_THAT(LabelText("lblLinkTest"),
                AllOf(HasSubstr("COM Port Error"), HasSubstr("4 reads, 1 errors"), HasSubstr("median")));
}

TEST_F(DiagnosticsTest, NothingElseStartsMeanwhileAndCancelEndsIt)
{
    receiver_.SetFaults({{.kind = FaultKind::Silent, .count = 1, .after = 3}});
    auto& transfers = Find<TransferCommands>("");
    QMetaObject::Connection watch =
        QObject::connect(&transfers, &TransferCommands::ProgressAdvanced, window_.get(), [&](int done) {
            if (done < 3)
                return;
            for (const char* name : {"mnuReAll", "mnuWrAll", "mnuFileOpen", "mnuHelpAbout"})
                EXPECT_FALSE(Item(name).isEnabled()) << name;
            EXPECT_FALSE(Find<QPushButton>("cmbRxData").isEnabled());
            for (const char* name : {"cmbLinkTest", "cmbSaveLog"})
                EXPECT_FALSE(Find<QPushButton>(name).isEnabled()) << name;
            Find<QPushButton>("cmbCancel").click();
        });
    Click("cmbLinkTest");
    QObject::disconnect(watch);
    EXPECT_THAT(LabelText("lblLinkTest"), HasSubstr("3 reads, 0 errors"));
    for (const char* name : {"mnuReAll", "mnuFileOpen"})
        EXPECT_TRUE(Item(name).isEnabled()) << name;
}

TEST_F(DiagnosticsTest, APanelThatATransferKeepsFromWorking)
{
    auto& transfers = Find<TransferCommands>("");
    bool wasEnabled = true;
    QObject::connect(&transfers, &TransferCommands::Refreshed, window_.get(), [&] {
        wasEnabled = Find<QPushButton>("cmbRawRead").isEnabled();
        Read("1000");
    });
    Item("mnuReSettings").trigger();
    EXPECT_FALSE(wasEnabled);
    EXPECT_EQ(receiver_.CommandLog().size(), 16U);
    EXPECT_TRUE(Find<QPushButton>("cmbRawRead").isEnabled());
}

TEST_F(DiagnosticsTest, LogKeepsExchangesAndSavesThem)
{
    Read("1000");
    receiver_.SetFaults({{.kind = FaultKind::HangUp}});
    Read("1010");
    dialogs_.files = {Path("log.txt"), Path("no-such-folder/log.txt")};
    Click("cmbSaveLog");
    QFile file(Path("log.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_THAT(lines[0].toStdString(), AllOf(MatchesRegex("....-..-.. ..:..:......\t[0-9.]+ ms\t.*"),
                                              HasSubstr("\tQT~F1000R\\r\t"), EndsWith("\\r\\n")));
    EXPECT_THAT(lines[1].toStdString(), HasSubstr("\tQT~F1010R\\r\t(the port failed)"));
    Click("cmbSaveLog");
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("File Open Error"));
    Click("cmbClearLog");
    EXPECT_EQ(Find<QTableView>("tblExchanges").model()->rowCount(), 0);
}

TEST_F(DiagnosticsTest, LogForgetsTheOldest)
{
    ExchangeLog& log = static_cast<ExchangeLog&>(*Find<QTableView>("tblExchanges").model());
    for (int i = 0; i < 21; ++i)
        Click("cmbLinkTest");
    EXPECT_EQ(log.Text().count(QLatin1Char('\n')), static_cast<int>(ExchangeLog::kKept));
    EXPECT_EQ(log.rowCount(), static_cast<int>(ExchangeLog::kKept));
}

}  // namespace
}  // namespace rqm5
