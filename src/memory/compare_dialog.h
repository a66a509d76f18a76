#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "document/document.h"
#include "memory/compare_tree.h"
#include "ui/dialogs.h"

namespace rqm5 {

/// Tools > Compare: what differs between the open image and another one, and the way to take it. It stays
/// open beside the main window and follows what changes there.
class dlgCompare : public QDialog
{
    Q_OBJECT

  public:
    dlgCompare(Document& document, Dialogs& dialogs, QWidget* parent);

    /// What the open image is compared with.
    struct Source
    {
        Message name;  ///< in a step: "bank.RQ5"
        /// In the window, with times as the language of the moment writes them: "Other side: the file
        /// bank.RQ5, saved 31.01.26 18:05"
        std::function<Message()> title;
        CloneImage image;
        ComparedParts parts;
    };

    /// Compares with another image from now on.
    void ShowSource(Source source);

    /// Shows the window, or brings it to the front.
    void Present();

    /// Whether there is a last read to compare with.
    void SetLastRead(bool isThere);

    /// Nothing is taken while a transfer runs, and nothing else is read.
    void SetTransferRunning(bool isRunning);

  signals:
    void FileWanted();
    void BackupWanted();
    void LastReadWanted();
    void ReceiverWanted();
    void PlaceChosen(rqm5::ItemId id);

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QLayout* BuildSources();
    QLayout* BuildFilters();
    QLayout* BuildButtons();
    QPushButton* MakeButton(const char* name, const QString& text, const QString& hint);
    void ShowTexts();
    void CompareAgain();
    void ShowComparison();
    void CompareSoon();
    void ListGroups();
    void ShowDifferences();
    void ShowButtons();
    void Take(const std::vector<ItemId>& items);
    bool IsFiltered() const;

    Document& document_;
    Dialogs& dialogs_;
    std::optional<Source> source_;
    Comparison comparison_;
    bool hasLastRead_ = false;
    bool isTransferRunning_ = false;
    QTimer soon_;  ///< several changes at once are one comparison

    CompareTree* lstCompare_;
    QLabel* lblCompareSource_;
    QLabel* lblCompareCount_;
    QComboBox* cbbCompareGroup_;
    QComboBox* cbbCompareWhat_;
    QPushButton* cmbCompareFile_ = nullptr;
    QPushButton* cmbCompareBackup_ = nullptr;
    QPushButton* cmbCompareLastRead_ = nullptr;
    QPushButton* cmbCompareReceiver_ = nullptr;
    QPushButton* cmbTakeSelected_ = nullptr;
    QPushButton* cmbTakeAll_ = nullptr;
};

}  // namespace rqm5
