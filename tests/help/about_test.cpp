#include "help/about_dialog.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

#include "app/window_fixture.h"
#include "help/about_facts.h"

namespace rqm5 {
namespace {

using testing::AllOf;
using testing::HasSubstr;

TEST(About, ShowsWhatAPathHoldsAsPlainText)
{
    const auto facts = AboutFacts(QStringLiteral("/a\nb/<b>RQ-M5.ini"), 3, {});
    const std::string text = AboutText(facts).toStdString();
    EXPECT_THAT(text, AllOf(HasSubstr("\\n"), HasSubstr("<b>RQ-M5.ini"), HasSubstr("COM 3 (no device)")));
    dlgAbout box(facts, nullptr);
    for (const QLabel* label : box.findChildren<QLabel*>())
        if (label->text().contains(QLatin1String("<b>"))) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
        }
}

TEST_F(WindowTest, AboutCopiesEverythingForABugReport)
{
    qputenv("RQM5_COM1", "/dev/some-cable");
    Start();
    qunsetenv("RQM5_COM1");
    dialogs_.act = [](QDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmbCopy")), Qt::LeftButton);
    };
    Item("mnuHelpAbout").trigger();
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                AllOf(HasSubstr("Tervan RQ-M5 Clone Utility"), HasSubstr(RQM5_VERSION), HasSubstr("MIT"),
                      HasSubstr(qVersion()), HasSubstr(options_.portFile.toStdString()),
                      HasSubstr("COM 1, /dev/some-cable")));
}

}  // namespace
}  // namespace rqm5
