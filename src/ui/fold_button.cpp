#include "ui/fold_button.h"

#include <QCoreApplication>
#include <QStatusTipEvent>

#include "language/language.h"
#include "language/translated.h"
#include "ui/settings_store.h"

namespace rqm5 {

FoldButton::FoldButton(QWidget& folded, const QString& key, Message show, Message hide)
    : folded_(folded), show_(std::move(show)), hide_(std::move(hide))
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
    connect(&Language::OfProgram(), &Language::Changed, this, &FoldButton::ShowTip);
}

void FoldButton::Fold(bool isFolded)
{
    folded_.setVisible(!isFolded);
    setArrowType(isFolded ? Qt::LeftArrow : Qt::RightArrow);
    ShowTip();
}

void FoldButton::ShowTip()
{
    setToolTip(Translated(isChecked() ? show_ : hide_));
    setAccessibleName(toolTip());
    setStatusTip(toolTip());
    if (!underMouse())
        return;
    QStatusTipEvent tip(statusTip());
    QCoreApplication::sendEvent(this, &tip);
}

}  // namespace rqm5
