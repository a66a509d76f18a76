#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTranslator>
#include <QTreeWidget>

#include "files/file_store.h"
#include "link/port_file.h"
#include "memory/start_image.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

const QString kTitle = QStringLiteral("Tervan RQ-M5 Clone Utility");

TEST_F(WindowTest, StartsWithAnUnchangedImageOnTheFirstTab)
{
    Start();
    EXPECT_EQ(window_->windowTitle(), kTitle);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New"));
    EXPECT_TRUE(StatusText("lblPort").startsWith(QStringLiteral("COM 1: %1").arg(DeviceOfComPort(1))));
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("200"));
    EXPECT_EQ(Find<QComboBox>("cbbBank").count(), 54);
    for (const QWidget* other : QApplication::topLevelWidgets())
        EXPECT_FALSE(other->isVisible() && other != window_.get()) << "the splash window must be gone";
}

TEST_F(WindowTest, NeverComesBeforeTheSplashTime)
{
    for (int time = 101; time < 160; time += 11) {
        options_.splashTime = std::chrono::milliseconds(time);
        frmMain window(port_, dialogs_, options_);
        QElapsedTimer clock;
        clock.start();
        window.Form_Load();
        EXPECT_GE(clock.nsecsElapsed(), qint64{time} * 1'000'000) << "too early is a fault on any machine";
    }
}

TEST_F(WindowTest, InsertAndDeleteOutOfSightAreToldInTheStatusBar)
{
    CloneImage image = StartUpImage(0);
    for (const int row : {0, 6, 199, 205}) {
        image.MemData(row).frequency = (100 + row) * 1'000'000;
        image.MemData(row).enabled = true;
    }
    ASSERT_FALSE(SaveCloneFile(Path("radio.RQ5"), image).problem);
    options_.commandFile = Path("radio.RQ5");
    Start();
    GoTo(Tab::Memory);
    const struct
    {
        int group;
        int row;
        const char* button;
        const char* note;
    } cases[] = {
        {kSelectPriority, 6, "cmbInsert",
         "Rows 6 to 198 moved down; lost: 299.000000 MHz in row 199 (Bank 0, channel 199)."},
        {1, 7, "cmbDelete", "Rows 8 to 199 moved up; lost: 106.000000 MHz in row 7 (Bank 0, channel 7)."},
        {1, 3, "cmbDelete", "Rows 4 to 199 moved up; row 3 was empty, so nothing is lost."},
        {kSelectAll, 198, "cmbInsert", "Row 198 moved down; row 199 was empty, so nothing is lost."},
    };
    for (const auto& test : cases) {
        Find<QComboBox>("cbbBank").setCurrentIndex(test.group);
        Find<QTableView>("MSFlexGrid1")
            .setCurrentIndex(Find<QTableView>("MSFlexGrid1").model()->index(test.row, 0));
        dialogs_.answers = {QMessageBox::Ok};
        Click(test.button);
        dialogs_.answers.clear();
        EXPECT_EQ(StatusText("lblHint").toStdString(), test.note);
    }
    Find<QComboBox>("cbbBank").setCurrentIndex(0);
    Click("cmbInsert");
    EXPECT_FALSE(StatusText("lblHint").contains(QStringLiteral("moved")))
        << "the table shows just these rows";
}

TEST_F(WindowTest, TakesThePortFromItsFileAndWritesItAtTheEnd)
{
    ASSERT_TRUE(WritePortFile(options_.portFile, 14));
    Start();
    EXPECT_EQ(window_->CommPort(), 14);
    EXPECT_EQ(port_.Device(), DeviceOfComPort(14));
    ASSERT_TRUE(QFile::remove(options_.portFile));
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(ReadPortFile(options_.portFile), 14);

    options_.portFile = Path("no such folder/RQ-M5.ini");
    Start();
    EXPECT_TRUE(window_->close()) << "even where nothing can be written";
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(WindowTest, KeepsItsPlaceOnlyWhenItIsNotMinimised)
{
    for (const bool isMinimised : {true, false}) {
        Start();
        window_->setGeometry(100, 50, 800, 600);
        if (isMinimised)
            window_->showMinimized();
        EXPECT_TRUE(window_->close());
        const QVariant width =
            QSettings(QStringLiteral("Tervan"), kTitle).value(QStringLiteral("Settings/MainWidth"));
        const double twips = window_->frameGeometry().width() * 1440.0 / window_->logicalDpiX();
        EXPECT_EQ(width.toString(), isMinimised ? QString() : QString::number(twips, 'g', 7));
    }
}

TEST_F(WindowTest, OpensTheFileOfTheCommandLineAndNewEmptiesIt)
{
    ASSERT_FALSE(SaveCloneFile(Path("radio.RQ5"), StartUpImage(2)).problem);
    options_.commandFile = Path("radio.RQ5");
    Start();
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("radio.RQ5 - ") + kTitle);
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 T"));
    Item("mnuFileNew").trigger();
    EXPECT_EQ(window_->windowTitle(), kTitle);
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentText(), QStringLiteral("All"));
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("0"));
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 T")) << "the model stays";

    options_.commandFile = Path("missing.RQ5");
    Start();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("File Open Error"));
    EXPECT_EQ(window_->windowTitle(), kTitle);
}

TEST_F(WindowTest, TabsDisableTheOthersAmongTheFirstThree)
{
    Start();
    const bool allowsModify[] = {true, false, true, false};
    for (const int chosen : {3, 0, 2, 1, 3, 2}) {
        GoTo(static_cast<Tab>(chosen));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(Find<QWidget>(qPrintable(QStringLiteral("Frame1_%1").arg(i))).isEnabled(),
                      i == chosen || i == 3)
                << chosen << " " << i;
        EXPECT_EQ(Item("mnuEditUndo").isEnabled(), allowsModify[chosen]);
    }
}

TEST_F(WindowTest, ARefusedBankSizeIsRestoredBeforeThePageChanges)
{
    Start();
    TypeBankSize(49, "1000");
    auto& box = Find<QLineEdit>("txtBank_49");
    QString shownInMessage;
    dialogs_.onAsk = [&] {
        EXPECT_TRUE(box.isVisible());
        shownInMessage = box.text();
    };
    GoTo(Tab::Memory);
    EXPECT_EQ(shownInMessage, QStringLiteral("0"));
    EXPECT_EQ(dialogs_.asked.size(), 1U);
}

TEST_F(WindowTest, ATypedBankSizeIsTakenBeforeAMenuActs)
{
    Start();
    TypeBankSize(0, "7");
    dialogs_.files = {Path("radio.RQ5")};
    QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
    CloneImage image;
    ASSERT_FALSE(LoadCloneFile(Path("radio.RQ5"), image));
    EXPECT_EQ(image.BankSize(0), 7);
}

TEST_F(WindowTest, ToolbarButtonsActByTheirKeys)
{
    Start();
    QStringList keys;
    auto& bar = Find<ToolBar>("tbToolBar");
    std::map<QString, QWidget*> buttons;
    for (QAction* button : bar.actions()) {
        const QString key = button->data().toString();
        keys += button->isSeparator() ? QStringLiteral("|") : key.isEmpty() ? button->objectName() : key;
        buttons[keys.constLast()] = bar.widgetForAction(button);
    }
    EXPECT_EQ(keys.join(QLatin1Char(' ')),
              QString::fromUtf8("新規作成 開く 上書き保存 | mnuHistoryUndo mnuHistoryRedo | mnuEditFind | "
                                "tbReAll tbWrAll | 印刷 ﾍﾙﾌﾟ"));

    const auto press = [&](const char* key) {
        QTest::mouseClick(buttons.at(QString::fromUtf8(key)), Qt::LeftButton);
    };
    press("開く");
    press("上書き保存");
    EXPECT_EQ(dialogs_.choices, (std::vector{FileChoice::OpenClone, FileChoice::SaveClone}));
    dialogs_.act = [](const QDialog& dialog) { EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About")); };
    press("ﾍﾙﾌﾟ");
    for (const char* other : {"ヘルプ", "開く ", "Open", ""})
        bar.tbToolBar_ButtonClick(QString::fromUtf8(other));
    EXPECT_EQ(dialogs_.choices.size(), 2U);
    EXPECT_EQ(dialogs_.runs, 1);
}

TEST_F(WindowTest, ToolTipsNameTheKeysAndNewButtonsAct)
{
    Start();
    auto& bar = Find<ToolBar>("tbToolBar");
    QStringList tips;
    for (const QAction* button : bar.actions())
        tips += button->isSeparator() ? QString() : button->toolTip();
    tips.removeAll(QString());
    EXPECT_EQ(tips.join(QLatin1Char('|')).toStdString(),
              "New (Ctrl+N)|Open (Ctrl+O)|Save (Ctrl+S)|Undo (Ctrl+Z)|Redo (Ctrl+Shift+Z)|Find (Ctrl+F)|"
              "Read ALL (Ctrl+R)|Write ALL (Ctrl+Shift+W)|Print (Ctrl+P)|About");
    EditSomething();
    EXPECT_TRUE(Item("mnuHistoryUndo").toolTip().endsWith(QLatin1String(" (Ctrl+Z)")));
    QSignalSpy read(&Item("mnuReAll"), &QAction::triggered);
    QTest::mouseClick(bar.widgetForAction(&Item("tbReAll")), Qt::LeftButton);
    EXPECT_EQ(read.count(), 1);
    Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(read.count(), 2);
    QTest::mouseClick(bar.widgetForAction(&Item("mnuEditFind")), Qt::LeftButton);
    EXPECT_TRUE(Find<QLineEdit>("txtFind").hasFocus());
}

TEST_F(WindowTest, CtrlPageKeysChangeTheTabAndEscLeavesASearchWhereItBegan)
{
    Start();
    for (const int tab : {1, 2, 3, 0}) {
        Press(Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(Tabs().currentIndex(), tab);
    }
    auto& slider = Find<QWidget>("MSFlexGrid2");
    slider.setFocus();
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Tabs().currentIndex(), 2);
    EXPECT_TRUE(Find<QLineEdit>("txtFind").hasFocus());
    Press(Qt::Key_Escape);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_TRUE(slider.hasFocus());
    Press(Qt::Key_F3);
    EXPECT_TRUE(Find<QLineEdit>("txtFind").hasFocus()) << "there is nothing to go to yet";
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Tabs().currentIndex(), 1);
}

TEST_F(WindowTest, DuplicatesAreListedBesideTheWindowAndAClickGoesThere)
{
    CloneImage image = StartUpImage(0);
    for (const int row : {3, 205, 206, 1201})
        image.MemData(row).frequency = row == 206 ? 146'000'000 : 145'000'000;
    image.MemData(205).mode = 1;  // the frequency is what counts
    options_.commandFile = Path("twice.RQ5");
    ASSERT_FALSE(SaveCloneFile(options_.commandFile, image).problem);
    Start();
    Item("mnuToolsDuplicates").trigger();
    auto& dialog = Find<QDialog>("dlgDuplicates");
    EXPECT_FALSE(dialog.isModal());
    auto& list = Find<QTreeWidget>("lstDuplicates");
    ASSERT_EQ(list.topLevelItemCount(), 1);
    QTreeWidgetItem& frequency = *list.topLevelItem(0);
    EXPECT_EQ(frequency.text(0).toStdString(), "145.000000 MHz, 3 times");
    ASSERT_EQ(frequency.childCount(), 3);
    EXPECT_EQ(frequency.child(1)->text(0).toStdString(), "Bank 1, channel 5");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(frequency.child(1)).center());
    EXPECT_EQ(Tabs().currentIndex(), 2);
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentIndex(), 1);
    EXPECT_EQ(Find<QTableView>("MSFlexGrid1").currentIndex().row(), 5);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentIndex(), kSelectPriority);
    EXPECT_TRUE(dialog.isVisible());
    dialogs_.answers = {QMessageBox::Ok};
    Click("cmbClear");
    EXPECT_EQ(list.topLevelItem(0)->childCount(), 2) << "it follows";
}

TEST_F(WindowTest, TheEditorStepsThroughTheRowsThatAFilterShows)
{
    CloneImage image = StartUpImage(0);
    for (const int row : {3, 5, 6, 9}) {
        image.MemData(row).frequency = 145'000'000 + row;
        image.MemData(row).enabled = row == 6;
    }
    options_.commandFile = Path("off.RQ5");
    ASSERT_FALSE(SaveCloneFile(options_.commandFile, image).problem);
    Start();
    GoTo(Tab::Memory);
    Find<QComboBox>("cbbFilter").setCurrentText(QStringLiteral("Disabled"));
    dialogs_.act = [](QDialog& dialog) {
        const auto press = [&dialog](const char* button) {
            dialog.findChild<QAbstractButton*>(QLatin1String(button))->click();
            return dialog.findChild<QLabel*>(QStringLiteral("lblCH"))->text().toStdString();
        };
        EXPECT_EQ(press("NextButton"), "Bank 0  CH 5");
        press("chkEnable");
        EXPECT_EQ(press("OKNextButton"), "Bank 0  CH 9") << "row 5 is hidden now";
        EXPECT_EQ(press("NextButton"), "Bank 0  CH 9") << "there is no other";
        EXPECT_EQ(press("PreviousButton"), "Bank 0  CH 3");
    };
    Item("mnuEditUndo").trigger();
    EXPECT_EQ(Find<QTableView>("MSFlexGrid1").model()->rowCount(), 2) << "the filter is still on";
}

TEST_F(WindowTest, ModifyOpensTheEditorOnTheRowOfTheTab)
{
    Start();
    dialogs_.act = [](QDialog& dialog) { EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Modify VFO")); };
    Item("mnuEditUndo").trigger();
    EXPECT_EQ(dialogs_.runs, 1);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New")) << "cancelled";
    GoTo(Tab::Memory);
    dialogs_.act = [](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("txtFreq"))->setText(QStringLiteral("145.5"));
        dialog.findChild<QAbstractButton*>(QStringLiteral("chkEnable"))->click();
        dialog.findChild<QAbstractButton*>(QStringLiteral("OKButton"))->click();
    };
    Item("mnuEditUndo").trigger();
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    EXPECT_EQ(StatusText("lblEnabled"), QStringLiteral("Channels enabled: 1"));
}

TEST_F(WindowTest, NotesInTheTableThatWillNotSurviveAreToldAtOnce)
{
    Start();
    GoTo(Tab::Memory);
    auto& table = Find<QTableView>("MSFlexGrid1");
    const auto note = [&](int row) { return table.model()->index(row, 9).data().toString().toStdString(); };
    const auto paste = [&](const char* text) {
        QApplication::clipboard()->setText(QString::fromUtf8(text));
        Item("mnuEditPaste").trigger();
    };
    paste("145.5\ta, b\n145.6\tfine\n145.7\tx, y");
    EXPECT_EQ(StatusText("lblMessage").toStdString(),
              "Notes whose comma or quotes will not survive a save: 2");
    Click("cmbMessage_0");
    EXPECT_EQ(note(0) + note(1) + note(2), "a; bfinex; y");
    EXPECT_TRUE(Find<QWidget>("barMessage").isHidden());
    table.setFocus();
    table.setCurrentIndex(table.model()->index(1, 9));
    for (const char key : std::string_view("d,"))
        QTest::keyClick(QApplication::focusWidget(), key);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(StatusText("lblMessage").toStdString(), "A comma or quotes in a note will not survive a save.");
    Item("mnuHistoryUndo").trigger();
    EXPECT_EQ(note(1), "fine");
    EXPECT_TRUE(Find<QWidget>("barMessage").isHidden());
}

TEST_F(WindowTest, NoLetterIsUsedTwiceInAMenuOrOnAPage)
{
    Start();
    const auto expectUnique = [](const QStringList& texts) {
        QStringList letters;
        for (const QString& text : texts)
            if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty())
                letters << key.toString();
        EXPECT_EQ(letters.removeDuplicates(), 0) << texts.join(u'|').toStdString();
    };
    QStringList titles;
    for (const QMenu* menu : window_->findChildren<QMenu*>()) {
        QStringList texts;
        for (const QAction* item : menu->actions())
            texts << item->text();
        expectUnique(texts);
        if (menu->parent() == window_->menuBar())
            titles << menu->title();
    }
    EXPECT_GE(titles.size(), 7);
    for (const Tab tab : {Tab::Settings1, Tab::Settings2, Tab::Memory, Tab::Bank}) {
        GoTo(tab);
        QStringList texts = titles;
        for (const auto* button : window_->findChildren<QAbstractButton*>())
            if (button->isVisible())
                texts << button->text();
        for (const auto* label : window_->findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() != nullptr)
                texts << label->text();
        expectUnique(texts);
    }
}

/// Puts every text of the main window's own context in brackets.
class Brackets : public QTranslator
{
  public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, "rqm5::frmMain") == 0 ? QStringLiteral("[%1]").arg(QString::fromUtf8(source))
                                                      : QString();
    }
};

TEST_F(WindowTest, FollowsTheLanguageWhileItRuns)
{
    Start();
    const auto texts = [this] {
        return Item("mnuFileNew").text() + Find<QMenu>("mnuRead").title() + Tabs().tabText(2) +
               Tabs().tabToolTip(2) + Find<ToolBar>("tbToolBar").actions().at(0)->toolTip();
    };
    const QString designed = texts();
    Brackets brackets;
    QApplication::installTranslator(&brackets);
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(), QStringLiteral("[&New][Read(&R)][Memory][The memory channels][New] (Ctrl+N)"));
    EditSomething();
    QApplication::removeTranslator(&brackets);
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(), designed);
    EXPECT_EQ(Item("mnuHistoryUndo").text(), QStringLiteral("&Undo Scan Mode: Timer Scan"));
    EXPECT_EQ(window_->windowTitle(), kTitle);
}

TEST_F(WindowTest, TheStatusBarSaysWhatMattersMost)
{
    Start();
    auto& bar = Find<StatusBar>("sbStatusBar");
    Find<QWidget>("Slider1").setFocus();
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[] {}, "Volume, 0 to 50"},
        {[&] { bar.ShowWarning(std::string("a warning")); }, "a warning"},
        {[&] { bar.ShowNote(QStringLiteral("a note")); }, "a note"},
        {[&] { bar.ShowPointerHint(QStringLiteral("a hint")); }, "a note"},
        {[&] { bar.ShowNote(QStringLiteral("news")); }, "news"},
        {[&] { bar.ShowNote({}); }, "a hint"},
        {[&] { bar.ShowPointerHint({}); }, "a warning"},
        {[&] { bar.ShowWarning({}); }, "Volume, 0 to 50"},
    };
    for (const auto& [happens, shown] : cases) {
        happens();
        EXPECT_EQ(StatusText("lblHint").toStdString(), shown);
    }
}

TEST_F(WindowTest, PrintsWhatTheWindowShows)
{
    Start();
    dialogs_.files = {Path("out.pdf")};
    dialogs_.act = [](QDialog& dialog) {
        for (const char* name : {"opbPrintTo_1", "cmbPrint"})
            dialog.findChild<QAbstractButton*>(QLatin1String(name))->click();
    };
    Item("mnuFilePrint").trigger();
    EXPECT_TRUE(QFile::exists(Path("out.pdf")));
}

}  // namespace
}  // namespace rqm5
