#include "ui/message_dialogs.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

namespace rqm5 {

namespace {

struct FileChoiceRow
{
    FileChoice choice;
    const char* title;
    const char* filters;
    const char* suffix;  ///< put behind a name that is typed without one
};

constexpr char kCloneFilters[] =
    QT_TRANSLATE_NOOP("MessageDialogs", "Tervan RQ-M5 Clone Files (*.RQ5);;All Files (*.*)");
constexpr char kCsvFilters[] = QT_TRANSLATE_NOOP("MessageDialogs", "CSV Files (*.csv);;All Files (*.*)");
constexpr char kPdfFilters[] = QT_TRANSLATE_NOOP("MessageDialogs", "PDF Files (*.pdf);;All Files (*.*)");
constexpr char kTextFilters[] = QT_TRANSLATE_NOOP("MessageDialogs", "Text Files (*.txt);;All Files (*.*)");

constexpr char kPictureFilters[] =
    QT_TRANSLATE_NOOP("MessageDialogs", "Pictures (*.png *.svg);;All Files (*.*)");

constexpr FileChoiceRow kFileChoices[] = {
    {FileChoice::OpenClone, QT_TRANSLATE_NOOP("MessageDialogs", "Open"), kCloneFilters, ""},
    {FileChoice::SaveClone, QT_TRANSLATE_NOOP("MessageDialogs", "Save As"), kCloneFilters, "RQ5"},
    {FileChoice::OpenCsv, QT_TRANSLATE_NOOP("MessageDialogs", "Import"), kCsvFilters, ""},
    {FileChoice::SaveCsv, QT_TRANSLATE_NOOP("MessageDialogs", "Export"), kCsvFilters, "csv"},
    {FileChoice::SaveList, QT_TRANSLATE_NOOP("MessageDialogs", "Export List"), kCsvFilters, "csv"},
    {FileChoice::SavePdf, QT_TRANSLATE_NOOP("MessageDialogs", "Save as PDF"), kPdfFilters, "pdf"},
    {FileChoice::SaveText, QT_TRANSLATE_NOOP("MessageDialogs", "Save as Text"), kTextFilters, "txt"},
    {FileChoice::SavePicture, QT_TRANSLATE_NOOP("MessageDialogs", "Save Picture"), kPictureFilters, "png"},
};

/// The details are sentences; in the narrow column under a short message they would be hard to read.
constexpr int kDetailsColumns = 60;

QString Translated(const char* text)
{
    return QCoreApplication::translate("MessageDialogs", text);
}

}  // namespace

QMessageBox::StandardButton MessageDialogs::Ask(QWidget* parent, const Prompt& prompt)
{
    QMessageBox box(prompt.icon, prompt.title, prompt.text, prompt.buttons, parent);
    box.setTextFormat(Qt::PlainText);
    if (prompt.defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(prompt.defaultButton);
    for (const auto& [button, caption] : prompt.captions)
        box.button(button)->setText(caption);
    // Else a title that is longer than the text is cut. Only wider: the text is not to be cut for it.
    constexpr int kTitleButtons = 60;
    const int title = box.fontMetrics().horizontalAdvance(prompt.title) + kTitleButtons;
    if (title > box.fontMetrics().size(0, prompt.text).width())
        if (auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
            text->setMinimumWidth(title);
    if (!prompt.more.isEmpty())
        box.setDetailedText(prompt.more);
    if (!prompt.details.isEmpty()) {
        box.setInformativeText(prompt.details);
        // setTextFormat does not reach the informative text, and a file may well be named "<b>".
        for (QLabel* label : box.findChildren<QLabel*>())
            if (label->text() == prompt.details) {
                label->setTextFormat(Qt::PlainText);
                label->setMinimumWidth(std::min(kDetailsColumns * label->fontMetrics().averageCharWidth(),
                                                label->fontMetrics().size(0, prompt.details).width()));
            }
    }
    QPushButton* copy = prompt.command.isEmpty()
                            ? nullptr
                            : box.addButton(Translated(QT_TRANSLATE_NOOP("MessageDialogs", "&Copy Command")),
                                            QMessageBox::ActionRole);
    if (copy != nullptr)
        copy->setObjectName(QStringLiteral("cmbCopyCommand"));
    const int answer = box.exec();
    if (copy == nullptr || box.clickedButton() != copy)
        return static_cast<QMessageBox::StandardButton>(answer);
    QGuiApplication::clipboard()->setText(prompt.command);
    return QMessageBox::Ok;
}

QString MessageDialogs::ChooseFile(QWidget* parent, FileChoice choice, const QString& suggested)
{
    const auto* row =
        std::ranges::find_if(kFileChoices, [choice](const auto& entry) { return entry.choice == choice; });
    QFileDialog dialog(parent, Translated(row->title));
    dialog.setNameFilters(Translated(row->filters).split(QStringLiteral(";;")));
    const bool opens = choice == FileChoice::OpenClone || choice == FileChoice::OpenCsv;
    dialog.setAcceptMode(opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QLatin1String(row->suffix));
    if (!suggested.isEmpty())
        dialog.selectFile(suggested);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

QString MessageDialogs::ChooseFolder(QWidget* parent, const QString& title, const QString& suggested)
{
    return QFileDialog::getExistingDirectory(parent, title, suggested);
}

int MessageDialogs::Run(QDialog& dialog)
{
    return dialog.exec();
}

}  // namespace rqm5
