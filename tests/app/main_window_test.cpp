#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>
#include <fstream>

#include "files/file_store.h"
#include "link/port_file.h"
#include "memory/start_image.h"
#include "window_fixture.h"

namespace rqm5 {
namespace {

const QString kTitle = QStringLiteral("Tervan RQ-M5 Clone Utility");

QString Text(const QByteArray& text)
{
    return QString::fromUtf8(text);
}

TEST_F(WindowTest, StartsWithAnUnchangedImageOnTheFirstTab)
{
    Start();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(window_->windowTitle(), kTitle);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New"));
    EXPECT_EQ(StatusText("lblPort"), QStringLiteral("COM 1: %1").arg(DeviceOfComPort(1)));
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("200"));
    const auto& selector = Find<QComboBox>("cbbBank");
    EXPECT_EQ(selector.count(), 54);
    EXPECT_EQ(selector.currentText(), QStringLiteral("Bank 0"));
    for (const QWidget* other : QApplication::topLevelWidgets())
        EXPECT_FALSE(other->isVisible() && other != window_.get()) << "the splash window must be gone";
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
}

TEST_F(WindowTest, ClosesEvenWhereNothingCanBeWritten)
{
    options_.portFile = Path("no such folder/RQ-M5.ini");
    Start();
    EXPECT_TRUE(window_->close());
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
        QSettings settings(QStringLiteral("Tervan"), kTitle);
        EXPECT_EQ(settings.contains(QStringLiteral("Settings/MainLeft")), !isMinimised);
        EXPECT_TRUE(QFile::exists(options_.portFile));
        if (!isMinimised) {
            const double perPixel = 1440.0 / window_->logicalDpiX();
            EXPECT_EQ(settings.value(QStringLiteral("Settings/MainWidth")).toString(),
                      QString::number(window_->frameGeometry().width() * perPixel, 'g', 7));
            EXPECT_EQ(settings.value(QStringLiteral("Settings/MainTop")).toString(),
                      QString::number(window_->frameGeometry().top() * perPixel, 'g', 7));
        }
    }
}

TEST_F(WindowTest, OpensTheFileOfTheCommandLine)
{
    CloneImage image = StartUpImage(2);
    ASSERT_FALSE(SaveCloneFile(Path("radio.RQ5"), image).problem);
    options_.commandFile = Path("radio.RQ5");
    Start();
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("radio.RQ5 - ") + kTitle);
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 T"));

    options_.commandFile = Path("missing.RQ5");
    Start();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].title, QStringLiteral("ERROR"));
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("File Open Error"));
    EXPECT_EQ(window_->windowTitle(), kTitle);
}

TEST_F(WindowTest, TabsDisableTheOthersAmongTheFirstThree)
{
    Start();
    EXPECT_EQ(Tabs().tabBar()->tabData(0).toString(), QStringLiteral("Set1"));
    const bool allowsModify[] = {true, false, true, false};
    for (const int chosen : {3, 0, 2, 1, 3, 2}) {
        GoTo(static_cast<Tab>(chosen));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(Find<QWidget>(qPrintable(QStringLiteral("Frame1_%1").arg(i))).isEnabled(),
                      i == chosen || i == 3)
                << chosen << " " << i;
        EXPECT_EQ(Item("mnuEditUndo").isEnabled(), allowsModify[chosen]);
    }
    EXPECT_TRUE(Find<QComboBox>("cbbBank").hasFocus());
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
    EXPECT_TRUE(Find<QComboBox>("cbbBank").isVisible());
}

TEST_F(WindowTest, ATypedBankSizeIsTakenBeforeAMenuActs)
{
    Start();
    TypeBankSize(0, "7");
    dialogs_.files = {Path("radio.RQ5")};
    QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
    CloneImage image;
    ASSERT_FALSE(LoadCloneFile(Path("radio.RQ5"), image));
    EXPECT_EQ(image.BankSize[0], 7);
}

TEST_F(WindowTest, ToolbarButtonsActByTheirKeys)
{
    Start();
    QStringList keys;
    auto& bar = Find<ToolBar>("tbToolBar");
    for (const QAction* button : bar.actions()) {
        keys += button->data().toString();
        EXPECT_FALSE(button->icon().isNull());
        EXPECT_FALSE(button->toolTip().isEmpty());
    }
    EXPECT_EQ(keys.join(QLatin1Char(' ')), Text("新規作成 開く 上書き保存 印刷 ﾍﾙﾌﾟ"));

    QTest::mouseClick(bar.widgetForAction(bar.actions().at(1)), Qt::LeftButton);
    QTest::mouseClick(bar.widgetForAction(bar.actions().at(2)), Qt::LeftButton);
    EXPECT_EQ(dialogs_.choices, (std::vector{FileChoice::OpenClone, FileChoice::SaveClone}));
    QString shown;
    dialogs_.act = [&shown](const QDialog& dialog) { shown = dialog.windowTitle(); };
    QTest::mouseClick(bar.widgetForAction(bar.actions().at(4)), Qt::LeftButton);
    EXPECT_EQ(shown, QStringLiteral("About"));

    for (const char* other : {"ヘルプ", "開く ", "Open", ""})
        bar.tbToolBar_ButtonClick(Text(other));
    EXPECT_EQ(dialogs_.choices.size(), 2U);
    EXPECT_EQ(dialogs_.runs, 1);
}

TEST_F(WindowTest, TabKeysStepThroughTheTabsFromInsideATable)
{
    Start();
    GoTo(Tab::Memory);
    auto& table = Find<QWidget>("MSFlexGrid1");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Tabs().currentIndex(), 3);
    QTest::keyClick(&Find<QWidget>("cmbReadBank"), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Tabs().currentIndex(), 0);
}

TEST_F(WindowTest, ModifyOpensTheEditorOnTheRowOfTheTab)
{
    Start();
    QString title;
    dialogs_.act = [&](QDialog& dialog) { title = dialog.windowTitle(); };
    const std::pair<Tab, const char*> cases[] = {{Tab::Settings1, "Modify VFO"},
                                                 {Tab::Memory, "Modify Memory"}};
    for (const auto& [tab, expected] : cases) {
        GoTo(tab);
        Item("mnuEditUndo").trigger();
        EXPECT_EQ(title, QLatin1String(expected));
    }
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New")) << "cancelled";
    dialogs_.act = [](QDialog& dialog) {
        auto* frequency = dialog.findChild<QLineEdit*>(QStringLiteral("txtFreq"));
        frequency->setFocus();
        frequency->selectAll();
        QTest::keyClicks(frequency, QStringLiteral("145.5"));
        dialog.findChild<QAbstractButton*>(QStringLiteral("chkEnable"))->click();
        dialog.findChild<QAbstractButton*>(QStringLiteral("OKButton"))->click();
    };
    Item("mnuEditUndo").trigger();
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed"));
    EXPECT_EQ(StatusText("lblEnabled"), QStringLiteral("Channels enabled: 1"));
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
    EXPECT_EQ(texts(), QStringLiteral("[&New][Read(&R)][Memory][The memory channels][New]"));
    EXPECT_EQ(Tabs().tabText(0), QStringLiteral("[Settings 1]"));
    QApplication::removeTranslator(&brackets);
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(), designed);
    EXPECT_EQ(window_->windowTitle(), kTitle);
}

TEST_F(WindowTest, ViewItemsShowAndHide)
{
    Start();
    const std::pair<const char*, const char*> cases[] = {{"mnuViewToolbar", "tbToolBar"},
                                                         {"mnuStatusBar", "sbStatusBar"}};
    for (const auto& [item, bar] : cases)
        for (const bool isShown : {false, true}) {
            Item(item).trigger();
            EXPECT_EQ(Item(item).isChecked(), isShown);
            EXPECT_EQ(Find<QWidget>(bar).isVisible(), isShown);
        }
}

TEST_F(WindowTest, StatusBarTellsWhatTheFocusedControlDoes)
{
    Start();
    GoTo(Tab::Memory);
    EXPECT_FALSE(StatusText("lblHint").isEmpty());
    EXPECT_EQ(StatusText("lblHint"), Find<QComboBox>("cbbBank").statusTip());
}

TEST_F(WindowTest, NewEmptiesEverything)
{
    CloneImage image = StartUpImage(1);
    ASSERT_FALSE(SaveCloneFile(Path("radio.RQ5"), image).problem);
    options_.commandFile = Path("radio.RQ5");
    Start();
    EditSomething();
    dialogs_.answers = {QMessageBox::No};
    Item("mnuFileNew").trigger();
    EXPECT_EQ(window_->windowTitle(), kTitle);
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("New"));
    EXPECT_EQ(Find<QComboBox>("cbbBank").currentText(), QStringLiteral("All"));
    EXPECT_EQ(Find<QLineEdit>("txtBank_0").text(), QStringLiteral("0"));
    EXPECT_EQ(StatusText("lblRegion"), QStringLiteral("RQ-M5 E")) << "the model stays";
    EXPECT_FALSE(Find<QAbstractButton>("opbScanMode_1").isChecked());
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
    EXPECT_EQ(dialogs_.runs, 1);
    EXPECT_TRUE(QFile::exists(Path("out.pdf")));
}

}  // namespace
}  // namespace rqm5
