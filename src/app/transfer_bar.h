#pragma once

#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

namespace rqm5 {

/// What shows while a transfer runs: progress, the channel that is being moved, and the way out.
class TransferBar : public QWidget
{
    Q_OBJECT

  public:
    explicit TransferBar(QWidget* parent);

    void Begin();  ///< a transfer runs; how far it will go is not known yet
    void End();

    void StartProgress(int maximum);
    void MoveProgress(int value, int row);

  signals:
    void CancelRequested();

  private:
    QProgressBar* progressBar_;
    QLineEdit* Text3_;
    QPushButton* cmbCancel_;
};

}  // namespace rqm5
