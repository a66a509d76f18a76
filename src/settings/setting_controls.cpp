#include "settings/setting_controls.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>

#include "settings/setting_texts.h"
#include "ui/form_texts.h"

namespace rqm5 {

SettingControls::SettingControls(const char* context, Document& document, QWidget& page)
    : context_(context), document_(document)
{
    SetTextContext(page, context);
    connect(&document, &Document::Replaced, this, &SettingControls::Show);
    connect(&document, &Document::Changed, this, [this](const ImageChange& change) {
        if (!change.Settings.empty())
            Show();
    });
}

template <class T>
void SettingControls::Store(T ReceiverSettings::*setting, T value, int run)
{
    // Showing a setting makes its control report the value that is there already.
    if (document_.Image().Settings().*setting == value)
        return;
    const int index = SettingIndex(setting);
    document_.Edit(
        {MESSAGE("%1: %2"), {SettingCaption(index), SettingValueText(index, value)}},
        [&](CloneImage& image) { image.Settings().*setting = value; }, run);
}

OptionGroup* SettingControls::Add(const OptionSetting& setting)
{
    auto* group = new OptionGroup(context_, setting.name, setting.title, setting.options, setting.columns);
    for (const Option& option : setting.options)
        group->Button(option.value)->setStatusTip(Designed(setting.tip));
    connect(group, &OptionGroup::Chosen, this, [this, setting](int value) { Store(setting.value, value); });
    show_.emplace_back(
        [this, group, setting] { group->Select(document_.Image().Settings().*setting.value); });
    return group;
}

QCheckBox* SettingControls::Add(const CheckSetting& setting)
{
    auto* box = new QCheckBox(Designed(setting.caption));
    box->setObjectName(QLatin1String(setting.name));
    box->setStatusTip(Designed(setting.tip));
    connect(box, &QCheckBox::toggled, this, [this, setting](bool on) { Store(setting.value, on); });
    show_.emplace_back(
        [this, box, setting] { box->setChecked(document_.Image().Settings().*setting.value); });
    return box;
}

void SettingControls::Add(const SliderSetting& setting, QGridLayout& grid)
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String(setting.name));
    slider->setStatusTip(Designed(setting.tip));
    slider->setRange(0, setting.highest);
    auto* caption = new QLabel(Designed(setting.caption));
    caption->setBuddy(slider);
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(setting.labelName));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    grid.setColumnMinimumWidth(2, label->fontMetrics().horizontalAdvance(QStringLiteral("000")));
    EndRun(slider);
    slider->installEventFilter(this);
    connect(slider, &QSlider::sliderPressed, this, [this, slider] { EndRun(slider); });
    connect(slider, &QSlider::sliderReleased, this, [this, slider] { EndRun(slider); });
    connect(slider, &QSlider::valueChanged, this, [this, slider, label, setting](int value) {
        label->setText(QString::number(value));
        Store(setting.value, value, runs_[slider]);
    });
    show_.emplace_back([this, slider, label, setting] {
        slider->setValue(document_.Image().Settings().*setting.value);
        label->setText(QString::number(slider->value()));
    });
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 0);
    grid.addWidget(slider, row, 1);
    grid.addWidget(label, row, 2);
}

/// Key presses at a slider are one run until the user leaves it.
bool SettingControls::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut)
        EndRun(watched);
    return QObject::eventFilter(watched, event);
}

void SettingControls::Show()
{
    for (const auto& show : show_)
        show();
}

}  // namespace rqm5
