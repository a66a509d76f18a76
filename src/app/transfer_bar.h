#pragma once

#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

namespace rqm5 {

class TextProgressBar;

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

    /// Says in the bar what is being done and how long it will take; an empty text makes room for percents.
    void Tell(const QString& text);

  signals:
    void CancelRequested();

  private:
    TextProgressBar* progressBar_;
    QLineEdit* Text3_;
    QPushButton* cmbCancel_;
};

}  // namespace rqm5
