#include <gmock/gmock.h>

#include <QFile>
#include <QPlainTextEdit>
#include <QTableView>

#include "app/diagnostics/diagnostics_panel.h"
#include "app/receiver_window_fixture.h"
#include "image/channel_block.h"

namespace rqm5 {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;

/// The started program with its diagnostics panel open and a receiver on its port.
class DiagnosticsTest : public ReceiverWindowTest
{
  protected:
    void SetUp() override
    {
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
};

TEST_F(DiagnosticsTest, RawReadShowsTheReplyAsReceivedAndWhatItMeans)
{
    const std::string channel = Read("1000");
    EXPECT_THAT(channel, AllOf(HasSubstr("memory row 0"), HasSubstr("QT~F1000R\\r"), HasSubstr(" ms: "),
                               HasSubstr(EncodeMemoryRow(demo_, 0).String().append("\\r\\n")),
                               HasSubstr("Frequency: " + demo_.MemText(0, kFrequency)),
                               HasSubstr("Step: " + demo_.MemText(0, kStep))));
    EXPECT_THAT(Read("0xc30"),
                AllOf(HasSubstr("0C30: VFO row 3"), HasSubstr("Frequency: " + demo_.VFOText(3, kFrequency))));
    EXPECT_THAT(Read("0040"), AllOf(HasSubstr("settings 1"), Not(HasSubstr("Frequency"))));
}

TEST_F(DiagnosticsTest, WrongAddressGetsAMessageBesideTheBoxAndIsNotSent)
{
    EXPECT_THAT(Read("1001"), IsEmpty());
    EXPECT_THAT(LabelText("lblRawFault"), HasSubstr("last digit"));
    EXPECT_THAT(receiver_.CommandLog(), IsEmpty());
    Read(" 01000 ");
    EXPECT_THAT(LabelText("lblRawFault"), IsEmpty());
    EXPECT_THAT(receiver_.CommandLog(), testing::ElementsAre("QT~F1000R"));
    receiver_.SetFaults({{.kind = FaultKind::Garble}});
    EXPECT_THAT(Read("1000"), AllOf(HasSubstr("garbled"), Not(HasSubstr("Frequency"))));
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
}

TEST_F(DiagnosticsTest, NothingElseStartsMeanwhileAndCancelEndsIt)
{
    QObject::connect(&Find<TransferCommands>(""), &TransferCommands::ProgressAdvanced, window_.get(),
                     [this](int done) {
                         if (done < 3)
                             return;
                         for (const char* name : {"mnuReAll", "mnuWrAll", "mnuFileOpen"})
                             EXPECT_FALSE(Item(name).isEnabled()) << name;
                         for (const char* name : {"cmbRxData", "cmbLinkTest", "cmbRawRead", "cmbSaveLog"})
                             EXPECT_FALSE(Find<QPushButton>(name).isEnabled()) << name;
                         Find<QPushButton>("cmbCancel").click();
                     });
    Click("cmbLinkTest");
    EXPECT_THAT(LabelText("lblLinkTest"), HasSubstr("3 reads, 0 errors"));
    for (const char* name : {"mnuReAll", "mnuFileOpen"})
        EXPECT_TRUE(Item(name).isEnabled()) << name;
}

TEST_F(DiagnosticsTest, LogKeepsExchangesAndSavesThem)
{
    Read("1000");
    dialogs_.files = {Path("log.txt"), Path("no-such-folder/log.txt")};
    Click("cmbSaveLog");
    QFile file(Path("log.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_THAT(file.readAll().toStdString(), AllOf(MatchesRegex("....-..-.. ..:..:......\t[0-9.]+ ms\t.*\n"),
                                                    HasSubstr("\tQT~F1000R\\r\t"), EndsWith("\\r\\n\n")));
    Click("cmbSaveLog");
    EXPECT_EQ(dialogs_.asked.size(), 1U);
    Click("cmbClearLog");
    EXPECT_EQ(Find<QTableView>("tblExchanges").model()->rowCount(), 0);
}

}  // namespace
}  // namespace rqm5
