#include <QAbstractItemView>
#include <fstream>

#include "files/file_store.h"
#include "memory/start_image.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

enum class Place { New, Open, Closing };

/// Three places where edits could get lost; and every answer, a save that is cancelled or fails included.
class SaveQuestion : public WindowTest
{
  protected:
    void StartEdited(Place place)
    {
        place_ = place;
        dialogs_ = {};
        QFile::remove(Path("mine.RQ5"));
        ASSERT_FALSE(SaveCloneFile(Path("other.RQ5"), StartUpImage(2)).problem);
        Start();
        EditSomething();
    }

    void Go()
    {
        if (place_ == Place::Closing)
            window_->close();
        else
            Item(place_ == Place::New ? "mnuFileNew" : "mnuFileOpen").trigger();
    }

    /// True when what was asked for happened.
    bool HasHappened()
    {
        if (place_ == Place::Closing)
            return !window_->isVisible();
        if (place_ == Place::Open)
            return window_->windowTitle().startsWith(QStringLiteral("other.RQ5"));
        return !Find<QAbstractButton>("opbScanMode_1").isChecked();
    }

    Place place_ = Place::New;
};

TEST_F(SaveQuestion, EveryAnswerInEveryPlace)
{
    const QString open = Path("other.RQ5");
    const QString save = Path("mine.RQ5");
    const QString unwritable = Path("no such folder/mine.RQ5");
    struct
    {
        const char* what;
        QMessageBox::StandardButton answer;
        std::deque<QString> files;
        bool happens;
        bool saves;
    } const cases[] = {
        {"cancel", QMessageBox::Cancel, {open}, false, false},
        {"no", QMessageBox::No, {open}, true, false},
        {"yes", QMessageBox::Yes, {save, open}, true, true},
        {"yes, but the save is cancelled", QMessageBox::Yes, {QString(), open}, false, false},
        {"yes, but the save fails", QMessageBox::Yes, {unwritable, open}, false, false},
    };
    for (const Place place : {Place::New, Place::Open, Place::Closing})
        for (const auto& row : cases) {
            SCOPED_TRACE(testing::Message() << row.what << " in place " << static_cast<int>(place));
            StartEdited(place);
            dialogs_.answers = {row.answer};
            dialogs_.files = row.files;
            Go();
            ASSERT_GE(dialogs_.asked.size(), 1U);
            const Prompt& question = dialogs_.asked[0];
            EXPECT_EQ(question.title, QStringLiteral("Save Changes"));
            EXPECT_EQ(question.text, QStringLiteral("Save changes to settings?"));
            EXPECT_EQ(question.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            EXPECT_EQ(question.defaultButton, QMessageBox::Yes);
            EXPECT_EQ(HasHappened(), row.happens);
            EXPECT_EQ(QFile::exists(save), row.saves);
            EXPECT_TRUE(row.happens || StatusText("lblFileState") == QStringLiteral("Changed"));
        }
}

TEST_F(SaveQuestion, ASaveThatLosesNotesDoesNotLetThemGo)
{
    for (const Place place : {Place::New, Place::Closing}) {
        StartEdited(place);
        std::ofstream(Path("in.csv").toStdString()) << "\"RQ-M5\",\"MEMORY\",\"3\",\"145.500000\",\"FM\","
                                                       "\"10KHz\",\"OFF\",\"0\",\"300Hz\",\"88.5Hz\","
                                                       "\"OFF\",\"0.600000\",\"a,b\",\"#FALSE#\",#TRUE#\r\n";
        dialogs_.files = {Path("in.csv"), Path("mine.RQ5")};
        Item("mnuFileImport").trigger();
        TypeBankSize(0, "7");
        GoTo(Tab::Settings1);
        dialogs_.answers = {QMessageBox::Yes};
        Go();
        EXPECT_FALSE(HasHappened()) << "the notes can still be mended";
        EXPECT_EQ(dialogs_.asked.back().title, QStringLiteral("Notes"));
    }
}

TEST_F(WindowTest, AFileNamedFromAFolderIsThatFileFromEveryFolder)
{
    CloneImage image = StartUpImage(2);
    ASSERT_FALSE(SaveCloneFile(Path("here.RQ5"), image).problem);
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder_.path());
    options_.commandFile = QStringLiteral("here.RQ5");
    Start();
    QDir::setCurrent(before);
    EditSomething();
    Item("mnuFileSave").trigger();
    EXPECT_FALSE(LoadCloneFile(Path("here.RQ5"), image));
    EXPECT_EQ(image.Settings().scanMode, 1);
}

TEST_F(WindowTest, SaveGoesToTheCurrentFileWhicheverItIs)
{
    Start();
    EditSomething();
    dialogs_.files = {Path("a.RQ5")};
    Item("mnuFileSave").trigger();
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("a.RQ5 - ")));
    dialogs_.files = {Path("b.csv")};
    Item("mnuFileExport").trigger();
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("b.csv - ")));
    // The CSV file is the current one now, and Save writes a clone file to it.
    Item("mnuFileSave").trigger();
    CloneImage image;
    EXPECT_FALSE(LoadCloneFile(Path("b.csv"), image));
    EXPECT_EQ(image.Settings().scanMode, 1);
    EXPECT_EQ(dialogs_.choices.size(), 2U);
}

TEST_F(WindowTest, AnImportOfNothingIsSaidAndChangesNothing)
{
    std::ofstream(Path("in.csv").toStdString()) << "\"RQ-M5\",\"OTHER\",\"3\"\r\n";
    Start();
    EditSomething();
    dialogs_.files = {Path("in.csv")};
    Item("mnuFileImport").trigger();
    EXPECT_TRUE(StatusText("lblHint").startsWith(QStringLiteral("Nothing was imported")));
    EXPECT_FALSE(window_->windowTitle().contains(QStringLiteral("in.csv")));
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    EXPECT_EQ(Item("mnuHistoryUndo").text(), QStringLiteral("&Undo Scan Mode: Timer Scan"));
    auto& steps = Find<QAbstractItemView>("lstHistory");
    steps.setCurrentIndex(steps.model()->index(0, 0));  // goes back without a key, a click or a menu
    EXPECT_FALSE(Item("mnuHistoryUndo").isEnabled());
    EXPECT_FALSE(StatusText("lblHint").startsWith(QStringLiteral("Nothing")))
        << "it was about what came before";
}

}  // namespace
}  // namespace rqm5
