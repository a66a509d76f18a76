#pragma once

#include <QToolButton>

namespace rqm5 {

/// A small arrow that folds away what stands at its right, and brings it back. It remembers, from run to run,
/// which of the two it was.
class FoldButton : public QToolButton
{
    Q_OBJECT

  public:
    /// \param key   what the state is kept as
    /// \param what  what is folded away, for the tool tip: "operation buttons"
    FoldButton(QWidget& folded, const QString& key, const QString& what);

  private:
    void Fold(bool isFolded);

    QWidget& folded_;
    const QString what_;
};

}  // namespace rqm5
