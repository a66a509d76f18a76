#pragma once

#include <QAction>
#include <QObject>
#include <QWidget>

namespace rqm5 {

/// Takes a clone file that is dropped anywhere on a window, before the control below it can take its name for
/// a text.
class CloneDrop : public QObject
{
    Q_OBJECT

  public:
    /// Listens to the whole program for as long as the window lives.
    /// \param open  the item that opens files: a drop can do no more
    CloneDrop(QWidget& window, const QAction& open);

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void Dropped(const QString& path);

  private:
    bool CanOpen() const;

    QWidget& window_;
    const QAction& open_;
};

}  // namespace rqm5
