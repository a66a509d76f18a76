#include "ui/fold_button.h"

#include <QCoreApplication>
#include <QStatusTipEvent>

#include "ui/settings_store.h"

namespace rqm5 {

FoldButton::FoldButton(QWidget& folded, const QString& key, const QString& what)
    : folded_(folded), what_(what)
{
    setAutoRaise(true);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    constexpr int kArrow = 9;
    setIconSize({kArrow, kArrow});
    setFixedWidth(2 * kArrow);
    setChecked(SettingsStore().value(key).toBool());
    Fold(isChecked());
    connect(this, &QToolButton::toggled, this, [this, key](bool isFolded) {
        SettingsStore().setValue(key, isFolded);
        Fold(isFolded);
    });
}

void FoldButton::Fold(bool isFolded)
{
    folded_.setVisible(!isFolded);
    setArrowType(isFolded ? Qt::LeftArrow : Qt::RightArrow);
    setToolTip((isFolded ? tr("Show the %1") : tr("Hide the %1")).arg(what_));
    setAccessibleName(toolTip());
    setStatusTip(toolTip());
    if (!underMouse())
        return;
    QStatusTipEvent tip(statusTip());
    QCoreApplication::sendEvent(this, &tip);
}

}  // namespace rqm5
