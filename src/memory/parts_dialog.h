#pragma once

#include <QDialog>
#include <array>

#include "memory/channel_parts.h"

class QCheckBox;
class QPushButton;

namespace rqm5 {

/// Chooses columns of channels.
class dlgParts : public QDialog
{
    Q_OBJECT

  public:
    /// \param offered  the others cannot be chosen, nor can what the model region does not have
    dlgParts(const QString& title, const QString& text, Parts offered, const Region& region, QWidget* parent);

    /// Ticks what can be chosen of these.
    void Choose(Parts parts);
    Parts Chosen() const;

  private:
    void ShowState();

    std::array<QCheckBox*, kChannelParts> chkPart_{};
    QPushButton* ok_;
};

}  // namespace rqm5
