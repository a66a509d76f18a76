#include "printing/print_dialog.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QPrintPreviewWidget>
#include <QTemporaryDir>

#include "memory/start_image.h"
#include "printing/pdf_text.h"
#include "printing/print_job.h"
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
    EXPECT_FALSE(PdfWords(pdf, QSizeF(792, 612)).isEmpty());
}

TEST_F(PrintDialog, PutsTheSpectrumOnAPageOfItsOwnBehindWhatElseIsPrinted)
{
    const auto pages = [&](std::initializer_list<const char*> clicks) {
        Open();
        for (const char* click : clicks)
            Click(click);
        dialogs.files = {pdf};
        Click("cmbPrint");
        return PdfPages(pdf);
    };
    const QStringList without = pages({"chkPrintMemory"});
    const QStringList with = pages({"chkPrintMemory", "chkPrintSpectrum"});
    ASSERT_EQ(with.size(), without.size() + 1);
    EXPECT_TRUE(with.last().contains(QStringLiteral("100 MHz"))) << qPrintable(with.last());
    const QStringList alone =
        pages({"chkPrintSettings", "chkPrintVfo", "chkPrintMemory", "chkPrintSpectrum"});
    ASSERT_EQ(alone.size(), 1);
    EXPECT_TRUE(alone[0].contains(QStringLiteral("Page 1 of 1"))) << qPrintable(alone[0]);
}

TEST_F(PrintDialog, SaysWhyNothingWasPrintedAndStaysOpen)
{
    Open({QStringLiteral("No such printer <b>")});
    Click("opbPrintTo_0");
    Click("cmbPrint");
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_TRUE(dialogs.asked[0].details.contains(QStringLiteral("\"No such printer <b>\"")));
    EXPECT_TRUE(dialog->isVisible());
    Click("opbPrintTo_1");
    Click("cmbPrint");
    EXPECT_TRUE(dialogs.asked.size() == 1 && dialog->isVisible()) << "a cancelled choice is no failure";
    dialogs.files = {folder.filePath(QStringLiteral("none/out.pdf"))};
    Click("cmbPrint");
    EXPECT_TRUE(dialogs.asked.size() == 2 && dialog->isVisible());
}

TEST_F(PrintDialog, OffersWhatTheChoiceLeavesToDo)
{
    Open({QStringLiteral("A printer")});
    const auto offered = [this] {
        std::string names;
        for (const char* name : {"cmbPreview", "cmbPrint", "cbbPrintGroup", "chkSkipEmpty", "cbbPrinter"})
            if (dialog->findChild<QWidget*>(QLatin1String(name))->isEnabled())
                names += std::string(name) + " ";
        return names;
    };
    Click("opbPrintTo_0");
    EXPECT_EQ(offered(), "cmbPreview cmbPrint cbbPrintGroup chkSkipEmpty cbbPrinter ");
    Click("opbPrintTo_1");
    Click("chkPrintMemory");
    EXPECT_EQ(offered(), "cmbPreview cmbPrint ");
    Click("chkPrintSettings");
    Click("chkPrintVfo");
    EXPECT_EQ(offered(), "");
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
        for (QAction* action : shown.findChildren<QAction*>())
            if (action->text() == QStringLiteral("Print"))
                action->trigger();
    };
    Click("cmbPreview");
    EXPECT_TRUE(dialogs.runs == 1 && QFile::exists(pdf));
}

}  // namespace
}  // namespace rqm5
