#include "ui/option_group.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>

#include "ui/form_texts.h"

namespace rqm5 {

OptionGroup::OptionGroup(const char* context, const char* name, const char* title,
                         std::span<const Option> options, int columns, QWidget* parent)
    : QGroupBox(Designed(title), parent), buttons_(new QButtonGroup(this))
{
    setObjectName(QLatin1String(name));
    SetTextContext(*this, context);
    auto* grid = new QGridLayout(this);
    int place = 0;
    for (const Option& option : options) {
        auto* button = new QRadioButton(Designed(option.caption));
        button->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(option.value));
        buttons_->addButton(button, option.value);
        grid->addWidget(button, place / columns, place % columns);
        ++place;
    }
    grid->setRowStretch(grid->rowCount(), 1);
    connect(buttons_, &QButtonGroup::idClicked, this, &OptionGroup::Chosen);
    connect(buttons_, &QButtonGroup::buttonClicked, this, &OptionGroup::TakeTabStop);
}

void OptionGroup::Select(int value)
{
    QAbstractButton* chosen = buttons_->button(value);
    // An exclusive group refuses to be left without a choice.
    buttons_->setExclusive(false);
    for (QAbstractButton* button : buttons_->buttons())
        button->setChecked(button == chosen);
    buttons_->setExclusive(true);
    TakeTabStop(chosen);
}

void OptionGroup::TakeTabStop(const QAbstractButton* chosen)
{
    // Tab goes to the chosen button, as in every group; the group itself loses track of it in Select. To the
    // others where it cannot go there.
    const bool isReachable = chosen != nullptr && chosen->isEnabledTo(this);
    for (QAbstractButton* button : buttons_->buttons())
        button->setFocusPolicy(!isReachable || button == chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

int OptionGroup::Selected() const
{
    return buttons_->checkedId();
}

QRadioButton* OptionGroup::Button(int value) const
{
    return static_cast<QRadioButton*>(buttons_->button(value));
}

}  // namespace rqm5
