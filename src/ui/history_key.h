#pragma once

#include <QObject>
#include <QWidget>

namespace rqm5 {

/// Lets Undo and Redo keys through to the menu of a window from text boxes in which nothing was typed: a
/// line edit keeps them for itself even then.
class HistoryKey : public QObject
{
    Q_OBJECT

  public:
    /// Listens to the whole program for as long as the window lives.
    explicit HistoryKey(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& window_;
};

}  // namespace rqm5
