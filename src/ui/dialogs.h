#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QString>
#include <QWidget>
#include <utility>
#include <vector>

namespace rqm5 {

/// A message or question with its fixed title and text. Texts are plain text, whatever they hold.
struct Prompt
{
    QString title;
    QString text;
    QString details = {};  ///< shown as informative text: device, reason, remedy, line number
    QString more = {};     ///< behind a "Show Details" button: what would be too long below the message
    QMessageBox::Icon icon = QMessageBox::Critical;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;

    /// Buttons that are called otherwise than their kind.
    std::vector<std::pair<QMessageBox::StandardButton, QString>> captions = {};
};

enum class FileChoice { OpenClone, SaveClone, OpenCsv, SaveCsv, SavePdf, SaveText, SavePicture };

/// The seam between the windows and the person: every message, question and choice of a file. The real
/// one shows boxes; tests answer by script.
class Dialogs
{
  public:
    virtual ~Dialogs() = default;

    /// Shows a message or question and returns the button that was pressed.
    virtual QMessageBox::StandardButton Ask(QWidget* parent, const Prompt& prompt) = 0;

    /// Lets the user choose a file. \return empty when cancelled
    virtual QString ChooseFile(QWidget* parent, FileChoice choice, const QString& suggested) = 0;

    /// Lets the user choose a folder. \return empty when cancelled
    virtual QString ChooseFolder(QWidget* parent, const QString& title, const QString& suggested) = 0;

    /// Runs a dialog until it is closed (QDialog::exec), so that tests can act on it.
    virtual int Run(QDialog& dialog) = 0;
};

}  // namespace rqm5
