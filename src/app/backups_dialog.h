#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QTreeWidget>
#include <optional>

#include "app/backup_list.h"
#include "language/message.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// File > Backups: the backups in a folder, and the limit on how many are kept.
class dlgBackups : public QDialog
{
    Q_OBJECT

  public:
    enum class Action { None, Open, Compare, WriteBack };

    dlgBackups(const CloneImage& open, const QString& folder, Dialogs& dialogs, QWidget* parent);

    /// What is to be done with Chosen(), once the window is closed.
    Action ChosenAction() const { return action_; }
    const BackupFile& Chosen() const { return chosen_; }

  private:
    void Build();
    QWidget* BuildLimit();
    QLayout* BuildButtons();
    QPushButton* AddButton(QLayout& row, const char* name, const QString& text, const QString& hint);
    void ListBackups();
    void ShowNext();
    void ShowBackup(QTreeWidgetItem& item, const BackupFile& backup);
    void ShowButtons();
    void Choose(Action action);
    void Delete();
    void KeepLimit();
    std::vector<BackupFile> Selected() const;
    const BackupFile& BackupOf(const QTreeWidgetItem* item) const;

    const CloneImage& open_;
    const QString folder_;
    Dialogs& dialogs_;
    std::vector<BackupFile> backups_;
    int next_ = 0;  ///< whose contents are shown next: reading many files takes a while
    QTimer reading_;
    Action action_ = Action::None;
    BackupFile chosen_;

    QTreeWidget* lstBackups_;
    QPushButton* cmbBackupOpen_ = nullptr;
    QPushButton* cmbBackupCompare_ = nullptr;
    QPushButton* cmbBackupWrite_ = nullptr;
    QPushButton* cmbBackupDelete_ = nullptr;
    QCheckBox* chkBackupNumber_ = nullptr;
    QSpinBox* spnBackupNumber_ = nullptr;
    QCheckBox* chkBackupAge_ = nullptr;
    QSpinBox* spnBackupAge_ = nullptr;
};

/// What a scope is called: "Everything", "Settings and VFO bands", "Bank 3".
Message ScopeText(const TransferScope& scope);

}  // namespace rqm5
