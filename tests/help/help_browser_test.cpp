#include "help/help_browser.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTabBar>
#include <QTextBlock>

#include "app/window_fixture.h"

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
    const struct
    {
        int tab;
        const char* control;
        const char* topic;
    } cases[] = {
        {0, "opbModel_0", "vfo-and-regions.md#choosing-the-model-region"},
        {0, "Slider1", "settings.md#settings-1"},
        {0, "MSFlexGrid2", "vfo-and-regions.md#the-vfo-table"},
        {0, "cmbRxData1", "reading-and-writing.md"},
        {1, "chkBeep", "settings.md#settings-2"},
        {1, "cmbTxData2", "reading-and-writing.md"},
        {2, "cbbBank", "channels-and-banks.md#how-the-memory-is-divided"},
        {2, "MSFlexGrid1", "channels-and-banks.md#the-memory-page"},
        {2, "cmbInsert", "channels-and-banks.md#the-operation-buttons"},
        {3, "txtBank_12", "channels-and-banks.md#the-bank-page"},
        {3, "chkLink_3", "channels-and-banks.md#the-bank-page"},
        {3, "cmbWriteBank", "reading-and-writing.md"},
    };
    for (const auto& one : cases) {
        Tabs().setCurrentIndex(one.tab);
        PressF1(Find<QWidget>(one.control));
        EXPECT_EQ(Source(), one.topic) << one.control;
        EXPECT_TRUE(Help().isVisible());
    }
}

TEST_F(HelpBrowserTest, F1OnAClickedTabOpensThePageOfThatTab)
{
    const char* const topics[] = {"settings.md#settings-1", "settings.md#settings-2",
                                  "channels-and-banks.md#the-memory-page",
                                  "channels-and-banks.md#the-bank-page"};
    QTabBar& bar = *Tabs().tabBar();
    for (int tab = 0; tab < bar.count(); ++tab) {
        Activate(*window_);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
        PressF1(bar);
        EXPECT_EQ(Source(), topics[tab]) << tab;
    }
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

TEST_F(HelpBrowserTest, FollowsLinksAndGoesBackAndForward)
{
    OpenHelp();
    FollowLink("ports.md#macos");
    EXPECT_EQ(Source(), "ports.md#macos");
    const int atEnd = Page().verticalScrollBar()->value();
    FollowLink("#the-port-dialog");
    EXPECT_EQ(Source(), "ports.md#the-port-dialog");
    EXPECT_GT(Page().verticalScrollBar()->value(), 0);
    EXPECT_LT(Page().verticalScrollBar()->value(), atEnd);
    Help().findChild<QAction*>(QStringLiteral("mnuBack"))->trigger();
    EXPECT_EQ(Source(), "ports.md#macos");
    EXPECT_EQ(Page().verticalScrollBar()->value(), atEnd);
    FollowLink("messages.md");
    EXPECT_EQ(Page().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Help().findChild<QListWidget*>()->currentItem()->text(), QStringLiteral("Messages"));
    QTest::keyClick(&Page(), Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(&Page(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Source(), "messages.md");
}

TEST_F(HelpBrowserTest, AsksBeforeItLeavesTheManual)
{
    OpenHelp();
    const std::string before = Source();
    dialogs_.answers = {QMessageBox::No};
    FollowLink("https://example.org/<b>");
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_TRUE(dialogs_.asked[0].details.contains(QLatin1String("example.org")));
    EXPECT_EQ(Source(), before);
}

TEST_F(HelpBrowserTest, SearchListsPagesAndEnterOpensTheFirst)
{
    OpenHelp();
    auto& search = *Help().findChild<QLineEdit*>(QStringLiteral("txtSearch"));
    auto& list = *Help().findChild<QListWidget*>(QStringLiteral("lstPages"));
    QTest::keyClick(&Page(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(search.hasFocus());
    QTest::keyClicks(&search, QStringLiteral("dialout"));
    ASSERT_EQ(list.count(), 1);
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Source(), "ports.md");
    EXPECT_EQ(Page().textCursor().selectedText(), QStringLiteral("dialout"));
    QTest::keyClicks(&search, QStringLiteral("xyz"));
    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(list.item(0)->flags(), Qt::NoItemFlags);
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Source(), "ports.md");
}

TEST_F(HelpBrowserTest, TextSizeChangesAndComesBack)
{
    OpenHelp();
    const int usual = Page().font().pointSize();
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&Page(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_GT(Page().font().pointSize(), 0);
    EXPECT_LT(Page().font().pointSize(), usual);
    QTest::keyClick(&Page(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Page().font().pointSize(), usual);
}

}  // namespace
}  // namespace rqm5
