#include "printing/print_dialog.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTemporaryDir>

#include "memory/start_image.h"
#include "printing/pdf_text.h"
#include "printing/print_job.h"
#include "settings/setting_texts.h"
#include "settings/settings1_page.h"
#include "settings/settings2_page.h"
#include "ui/scripted_dialogs.h"

namespace rqm5 {
namespace {

/// A print dialog with a job behind it and a person in front of it.
class PrintDialog : public testing::Test
{
  protected:
    void Open(const QStringList& printers = {})
    {
        dialog = std::make_unique<dlgPrint>(printers, nullptr);
        const QString file = folder.filePath(QStringLiteral("home.RQ5"));
        job = std::make_unique<PrintJob>(image, file, dialogs, *dialog);
        dialog->open();
    }

    void Click(const char* name) { dialog->findChild<QAbstractButton*>(QLatin1String(name))->click(); }

    bool IsEnabled(const char* name) const
    {
        return dialog->findChild<QWidget*>(QLatin1String(name))->isEnabled();
    }

    QTemporaryDir folder;
    QString pdf = folder.filePath(QStringLiteral("out.pdf"));
    CloneImage image = StartUpImage(0);
    ScriptedDialogs dialogs;
    std::unique_ptr<dlgPrint> dialog;
    std::unique_ptr<PrintJob> job;
};

TEST_F(PrintDialog, WritesTheChosenPartsToAPdfOfTheChosenPaper)
{
    Open();
    Click("chkPrintVfo");
    dialog->findChild<QComboBox*>(QStringLiteral("cbbPrintGroup"))->setCurrentIndex(kSelectPriority);
    Click("chkSkipEmpty");
    dialog->findChild<QComboBox*>(QStringLiteral("cbbPaper"))->setCurrentText(QStringLiteral("Letter"));
    Click("opbOrientation_1");
    dialogs.files = {pdf};
    Click("cmbPrint");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialogs.suggestions.at(0), folder.filePath(QStringLiteral("home.pdf")));
    const QString text = PdfPages(pdf).join(QLatin1Char(' '));
    for (const char* chosen : {"home.RQ5", "Battery Save", "Memory: Priority"})
        EXPECT_TRUE(text.contains(QLatin1String(chosen))) << chosen;
    for (const char* left : {"145.000000", "= No Entries ="})  // of the VFO table, and for empty rows
        EXPECT_FALSE(text.contains(QLatin1String(left))) << left;
    EXPECT_FALSE(PdfWords(pdf, QSizeF(792, 612)).empty());
}

TEST_F(PrintDialog, OffersOnlyWhatHasAnEffect)
{
    Open({QStringLiteral("Laser")});
    EXPECT_TRUE(dialog->findChild<QPushButton*>(QStringLiteral("cmbPrint"))->isDefault());
    EXPECT_TRUE(IsEnabled("cbbPrinter"));
    Click("opbPrintTo_1");
    Click("chkPrintMemory");
    EXPECT_FALSE(IsEnabled("cbbPrinter") || IsEnabled("cbbPrintGroup") || IsEnabled("chkSkipEmpty"));
    Click("chkPrintVfo");
    EXPECT_TRUE(IsEnabled("cmbPrint") && IsEnabled("cmbPreview"));
    Click("chkPrintSettings");
    EXPECT_FALSE(IsEnabled("cmbPrint") || IsEnabled("cmbPreview"));
}

TEST_F(PrintDialog, SaysWhyNothingWasPrintedAndStaysOpen)
{
    const std::tuple<QStringList, const char*, QString, const char*> kCases[] = {
        {{}, "opbPrintTo_0", {}, "No printer is installed"},
        {{QStringLiteral("No such printer <b>")}, "opbPrintTo_0", {}, "\"No such printer <b>\""},
        {{}, "opbPrintTo_1", folder.filePath(QStringLiteral("none/out.pdf")), "none"},
    };
    for (const auto& [printers, target, file, reason] : kCases) {
        dialogs = ScriptedDialogs();
        Open(printers);
        Click(target);
        dialogs.files = {file};
        Click("cmbPrint");
        ASSERT_EQ(dialogs.asked.size(), 1U) << reason;
        EXPECT_EQ(dialogs.asked[0].title, QStringLiteral("ERROR"));
        EXPECT_TRUE(dialogs.asked[0].details.contains(QLatin1String(reason))) << reason;
        EXPECT_TRUE(dialog->isVisible());
    }
    Open();
    dialogs = ScriptedDialogs();
    Click("cmbPrint");
    EXPECT_TRUE(dialogs.asked.empty() && dialog->isVisible()) << "a cancelled choice of a file is no failure";
}

TEST_F(PrintDialog, PreviewShowsThePagesAndPrintsAsTheDialogWould)
{
    Open();
    Click("chkSkipEmpty");
    dialogs.files = {pdf};
    dialogs.act = [](QDialog& shown) {
        auto* pages = shown.findChild<QPrintPreviewWidget*>();
        ASSERT_TRUE(pages);
        pages->updatePreview();
        EXPECT_GT(pages->pageCount(), 15);
        pages->setLandscapeOrientation();
        for (QAction* action : shown.findChildren<QAction*>())
            if (action->text() == QStringLiteral("Print"))
                action->trigger();
    };
    Click("cmbPreview");
    EXPECT_TRUE(dialogs.runs == 1 && QFile::exists(pdf));
    EXPECT_EQ(dialog->Layout().orientation(), QPageLayout::Landscape) << "turned in the preview";
}

/// The listing has its own captions, because it knows no window; they are the pages' ones all the same.
TEST_F(PrintDialog, ListsSettingsByTheCaptionsOfThePages)
{
    const Settings1Page first(image, dialogs, nullptr);
    const Settings2Page second(image, dialogs, nullptr);
    QStringList captions;
    for (const QWidget* page : {static_cast<const QWidget*>(&first), static_cast<const QWidget*>(&second)})
        for (const QWidget* widget : page->findChildren<QWidget*>())
            captions << widget->property("title").toString() << widget->property("text").toString();
    captions.replaceInStrings(QStringLiteral("&"), QString());
    for (const SettingText& setting : SettingTexts(image.Settings))
        EXPECT_TRUE(captions.contains(QString::fromStdString(setting.caption))) << setting.caption;
}

}  // namespace
}  // namespace rqm5
