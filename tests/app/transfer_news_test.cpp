#include <gmock/gmock.h>

#include <QPushButton>
#include <QRegularExpression>

#include "app/read_option_items.h"
#include "app/receiver_window_fixture.h"
#include "app/write_options.h"

namespace rqm5 {
namespace {

using testing::ContainsRegex;

/// Keeps what the desktop is told.
class TransferNews : public ReceiverWindowTest
{
  protected:
    TransferNews()
    {
        options_.showProgress = [this](double fraction) { icon_.push_back(fraction); };
        options_.notify = [this](const QString& text) { told_ << text; };
        Start();
    }

    std::string Note() { return StatusText("lblHint").toStdString(); }
    bool BarShows(const char* text)
    {
        return Find<QWidget>("barMessage").isVisible() && StatusText("lblMessage") == QLatin1String(text);
    }

    std::vector<double> icon_;
    QStringList told_;
};

TEST_F(TransferNews, ProgressSaysWhatHowMuchAndHowLong)
{
    QStringList texts;
    QObject::connect(&Find<TransferCommands>(""), &TransferCommands::ProgressTold, window_.get(),
                     [&] { texts << Bar().text(); });
    SaveWriteOptions({true, true, Path("backups")});
    SaveReadTwice(false);
    for (const char* transfer : {"mnuReAll", "mnuWrAll"}) {
        texts.clear();
        icon_.clear();
        Item(transfer).trigger();
        const bool isRead = std::string_view(transfer) == "mnuReAll";
        const std::vector<const char*> expected =
            isRead ? std::vector{"Reading settings and VFO bands: 1 of 16",
                                 "Reading settings and VFO bands: 16 of 16, about ",
                                 "Reading banks and flags, about ", "Reading channels: 92 of 1210, about "}
                   : std::vector{"Backup of settings and VFO bands: 1 of 16",
                                 "Backup of channels: 1210 of 1210, about ",
                                 "Writing settings and VFO bands: 17 of 81, about ",
                                 "Writing channels: 92 of 1210, about ",
                                 "Verifying: 1 of ",
                                 "Verifying: 1210 of "};
        qsizetype from = 0;
        for (const char* text : expected) {
            const auto found = std::find_if(texts.begin() + from, texts.end(), [text](const QString& told) {
                return told.startsWith(QLatin1String(text));
            });
            ASSERT_NE(found, texts.end()) << text << " behind " << qPrintable(texts.value(from));
            from = found - texts.begin();
        }
        EXPECT_TRUE(texts.last().contains(QRegularExpression(QStringLiteral(", about 0:0\\d left$"))))
            << qPrintable(texts.last());
        EXPECT_TRUE(std::is_sorted(icon_.begin(), icon_.end() - 1));
        EXPECT_GE(icon_.size(), 90U);
        EXPECT_GT(icon_.at(icon_.size() - 2), 0.98);
        EXPECT_LT(icon_.back(), 0) << "it is taken away";
    }
}

TEST_F(TransferNews, TheClosingNoteTellsWhatCameOfItAndWhetherUndoHelps)
{
    SaveWriteOptions({false, false, Path("backups")});
    Item("mnuReAll").trigger();
    EXPECT_THAT(Note(),
                ContainsRegex("^Read in [0-9]+:[0-9][0-9]: [0-9]+ channels on, [0-9]+ rows, .* changed[.]$"));
    GoTo(Tab::Memory);
    Click("cmbDisable");
    const QString edited = StatusText("lblEnabled");
    Item("mnuReMemory").trigger();
    EXPECT_THAT(
        Note(),
        ContainsRegex("channels on, 1 row changed[.] You had unsaved changes; Undo brings back what was "
                      "there before the read[.]$"));
    Item("mnuHistoryUndo").trigger();
    EXPECT_EQ(StatusText("lblEnabled"), edited);
    Item("mnuWrSettings").trigger();
    EXPECT_THAT(Note(), ContainsRegex("^Written in [0-9]+:[0-9][0-9][.]$"));
    EXPECT_TRUE(told_.isEmpty()) << "the window is in front";

    window_->showMinimized();
    Item("mnuReSettings").trigger();
    ASSERT_EQ(told_.size(), 1);
    EXPECT_TRUE(told_[0].startsWith(QStringLiteral("Read in "))) << qPrintable(told_[0]);
    receiver_.SetFaults({ParseFault("silent:100").value()});
    SetTimeOut(std::chrono::milliseconds(1));
    Item("mnuReSettings").trigger();
    ASSERT_GE(told_.size(), 2);
    EXPECT_TRUE(told_[1].startsWith(QStringLiteral("Communication Error"))) << qPrintable(told_[1]);
}

TEST_F(TransferNews, OffersHowToBeginUntilSomethingComesIntoTheImage)
{
    const char* const first = "Connect the receiver and choose Read > ALL (Ctrl+R), or open a file.";
    EXPECT_TRUE(BarShows(first));
    Click("cmbMessage_1");
    EXPECT_EQ(dialogs_.choices, std::vector{FileChoice::OpenClone});
    EXPECT_TRUE(BarShows(first)) << "nothing was chosen";
    EditSomething();
    EXPECT_FALSE(Find<QWidget>("barMessage").isVisible());
    Start();
    Click("cmbMessage_0");
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 E")) << "it has read";
    EXPECT_FALSE(Find<QWidget>("barMessage").isVisible());
}

TEST_F(TransferNews, OffersBackupAndVerificationOnceToAnOwnerWhoNeverSetThem)
{
    QSettings(QStringLiteral("Tervan"), QStringLiteral("Tervan RQ-M5 Clone Utility")).clear();
    Item("mnuWrSettings").trigger();
    EXPECT_TRUE(BarShows("Backup and verify are off."));
    Click("cmbMessage_0");
    EXPECT_TRUE(LoadWriteOptions().keepsBackup && LoadWriteOptions().verifies);
    EXPECT_TRUE(Item("mnuWrBackup").isChecked() && Item("mnuWrVerify").isChecked());
    EXPECT_FALSE(BarShows("Backup and verify are off."));
    EXPECT_FALSE(TakeWriteOffer()) << "they are set";
    SaveWriteOptions({false, false, Path("backups")});
    Item("mnuWrSettings").trigger();
    EXPECT_FALSE(BarShows("Backup and verify are off."));
}

}  // namespace
}  // namespace rqm5
