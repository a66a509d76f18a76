#pragma once

#include "ui/dialogs.h"

namespace rqm5 {

/// Answers come from the person: message boxes and file dialogs.
class MessageDialogs : public Dialogs
{
  public:
    QMessageBox::StandardButton Ask(QWidget* parent, const Prompt& prompt) override;
    QString ChooseFile(QWidget* parent, FileChoice choice, const QString& suggested) override;
    QString ChooseFolder(QWidget* parent, const QString& title, const QString& suggested) override;
    int Run(QDialog& dialog) override;
};

}  // namespace rqm5
