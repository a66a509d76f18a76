#include "help/help_browser.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBrowser>

#include "app/window_fixture.h"
#include "language/language.h"

namespace rqm5 {
namespace {

class HelpBrowserTest : public WindowTest
{
  protected:
    void SetUp() override { Start(); }

    void OpenHelp()
    {
        Item("mnuHelpContents").trigger();
        Activate(Help());
    }

    frmHelp& Help()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<frmHelp*>(window))
                return *help;
        qFatal("no help window");
    }
    PageView& Page() { return *Help().findChild<PageView*>(); }
    std::string Source() { return Page().source().toString().section(QLatin1Char('/'), -1).toStdString(); }

    /// A child of the active window counts as active for Qt, but has no shortcuts then.
    void Activate(QWidget& window)
    {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
    }

    void PressF1(QWidget& control)
    {
        Activate(*control.window());
        control.setFocus();
        QTest::keyClick(&control, Qt::Key_F1);
    }

    void FollowLink(const char* link) { emit Page().anchorClicked(QUrl(QString::fromLatin1(link))); }
};

TEST_F(HelpBrowserTest, F1OpensThePageForWhatHasTheFocus)
{
    const std::tuple<int, const char*, const char*> cases[] = {
        {0, "opbModel_0", "vfo-and-regions.md#choosing-the-model-region"},
        {1, "cmbTxData2", "reading-and-writing.md"},
        {1, "chkBeep", "settings.md#settings-2"},
        {2, "MSFlexGrid1", "editing-channels.md"},
        {2, "cmbInsert", "channels-and-banks.md#the-operation-buttons"},
        {3, "txtBank_12", "channels-and-banks.md#the-bank-page"},
    };
    for (const auto& [tab, control, topic] : cases) {
        Tabs().setCurrentIndex(tab);
        PressF1(Find<QWidget>(control));
        EXPECT_EQ(Source(), topic) << control;
    }
    GoTo(Tab::Memory);
    PressF1(*Tabs().tabBar());
    EXPECT_EQ(Source(), "channels-and-banks.md#the-memory-page");
}

/// The translated manual has the same sections in the same order.
TEST_F(HelpBrowserTest, KeepsThePlaceInAnotherLanguage)
{
    if (!QFile::exists(QStringLiteral(":/translations/rq-m5_de.qm")))
        GTEST_SKIP() << "built without translations";
    GoTo(Tab::Bank);
    PressF1(Find<QWidget>("txtBank_12"));
    QScrollBar& bar = *Page().verticalScrollBar();
    const auto switchTo = [](const char* code) {
        Language::OfProgram().Use(QLatin1String(code));
        QCoreApplication::processEvents();
    };
    ASSERT_GT(bar.value(), 0) << "opened at its section";
    const int opened = bar.value();
    bar.setValue(opened + 100);
    switchTo("de");
    EXPECT_TRUE(Page().toPlainText().contains(QStringLiteral("Kanal")));
    EXPECT_GT(bar.value(), 0);
    switchTo("en");
    EXPECT_NEAR(bar.value(), opened + 100, 60);
    bar.setValue(0);
    switchTo("de");
    EXPECT_EQ(bar.value(), 0) << "not back to the section";
    switchTo("en");
}

TEST_F(HelpBrowserTest, F1WorksInDialogsAndMessageBoxes)
{
    dialogs_.act = [this](QDialog& dialog) { PressF1(*dialog.focusWidget()); };
    Item("mnuToolsOptions").trigger();
    EXPECT_EQ(Source(), "ports.md");

    // A modal box blocks every window but its own children.
    QMessageBox box(QMessageBox::Critical, {}, QStringLiteral("Communication Error"), QMessageBox::Ok,
                    window_.get());
    box.open();
    Activate(box);
    QTest::keyClick(&box, Qt::Key_F1);
    auto* help = box.findChild<frmHelp*>();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->findChild<PageView*>()->source().fragment().toStdString(), "communication-error");
}

TEST_F(HelpBrowserTest, FollowsLinksGoesBackAndForwardAndSearches)
{
    OpenHelp();
    FollowLink("ports.md#macos");
    const int atEnd = Page().verticalScrollBar()->value();
    EXPECT_GT(atEnd, 0);
    FollowLink("#the-port-dialog");
    EXPECT_EQ(Source(), "ports.md#the-port-dialog");
    QTest::keyClick(&Page(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Source(), "ports.md#macos");
    EXPECT_EQ(Page().verticalScrollBar()->value(), atEnd);
    QTest::keyClick(&Page(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Source(), "ports.md#the-port-dialog");

    QTest::keyClick(&Page(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("spreadsheet CSV"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Source(), "files-and-csv.md") << "the first page that a search finds";
    const auto place = [this] { return Page().textCursor().selectionStart(); };
    int before = -1;
    while (place() > before) {
        before = place();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    EXPECT_LT(place(), before) << "behind the last one comes the first one";

    const std::pair<Qt::Key, int> sizes[] = {
        {Qt::Key_Plus, 1}, {Qt::Key_Minus, 0}, {Qt::Key_Minus, -1}, {Qt::Key_0, 0}};
    for (const auto& [key, size] : sizes) {
        QTest::keyClick(&Page(), key, Qt::ControlModifier);
        EXPECT_EQ(Page().TextSize(), size);
    }
}

TEST_F(HelpBrowserTest, TheFirstHitOpensWhileTypingAndEscClearsFirst)
{
    OpenHelp();
    FollowLink("ports.md");
    QTest::keyClick(&Page(), Qt::Key_F, Qt::ControlModifier);
    auto& search = *Help().findChild<QLineEdit*>(QStringLiteral("txtSearch"));
    auto& pages = *Help().findChild<QListWidget*>(QStringLiteral("lstPages"));
    const int all = pages.count();
    QTest::keyClicks(&search, QStringLiteral("undo"));
    EXPECT_EQ(Source(), "undo.md");
    EXPECT_TRUE(search.hasFocus());
    for (int i = 0; i < pages.count(); ++i)
        EXPECT_TRUE(pages.item(i)
                        ->text()
                        .section(QLatin1Char('\n'), 1)
                        .contains(QLatin1String("undo"), Qt::CaseInsensitive))
            << qPrintable(pages.item(i)->text());
    QTest::keyClick(&search, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Source(), "ports.md") << "one step back from the search, however many letters were typed";
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_TRUE(Help().isVisible() && search.text().isEmpty());
    EXPECT_EQ(pages.count(), all);
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_FALSE(Help().isVisible());
}

TEST_F(HelpBrowserTest, AsksBeforeItLeavesTheManual)
{
    OpenHelp();
    const std::string before = Source();
    QTextBrowser browser;  // in the place of the desktop's
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "setSource");
    for (const auto& [answer, isOpened] :
         {std::pair(QMessageBox::No, false), std::pair(QMessageBox::Yes, true)}) {
        dialogs_.answers = {answer};
        FollowLink("https://example.org/<b>");
        EXPECT_EQ(browser.source().host() == QLatin1String("example.org"), isOpened);
        EXPECT_EQ(Source(), before);
    }
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    ASSERT_EQ(dialogs_.asked.size(), 2U);
    EXPECT_TRUE(dialogs_.asked[0].details.contains(QLatin1String("example.org")));
    EXPECT_EQ(dialogs_.asked[0].defaultButton, QMessageBox::No);
}

}  // namespace
}  // namespace rqm5
