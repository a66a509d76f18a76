#include "settings/settings1_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <vector>

#include "ui/form_texts.h"
#include "ui/transfer_buttons.h"
#include "vfo/vfo_table.h"

namespace rqm5 {
namespace {

constexpr int kFirstSibling = 4;
constexpr int kLastSibling = 5;

constexpr Option kOperatingModes[] = {
    {0, QT_TRANSLATE_NOOP("Settings", "VFO")},
    {1, QT_TRANSLATE_NOOP("Settings", "Memory")},
    {11, QT_TRANSLATE_NOOP("Settings", "Preset")},
};

constexpr Option kScanModes[] = {
    {0, QT_TRANSLATE_NOOP("Settings", "Busy Scan")},
    {1, QT_TRANSLATE_NOOP("Settings", "Timer Scan")},
};

/// The model names are the same in every language.
OptionSetting ModelSetting()
{
    static const std::vector<Option> models = [] {
        std::vector<Option> options;
        for (const std::string_view name : ModelNames())
            options.push_back({static_cast<int>(options.size()), name.data()});
        return options;
    }();
    return {"opbModel",
            QT_TRANSLATE_NOOP("Settings", "Model"),
            &ReceiverSettings::model,
            models,
            2,
            QT_TRANSLATE_NOOP("Settings", "The receiver's model region: its bands, limits and presets")};
}

constexpr OptionSetting kOperatingMode = {"opbOpMode",
                                          QT_TRANSLATE_NOOP("Settings", "Operating Mode"),
                                          &ReceiverSettings::operatingMode,
                                          kOperatingModes,
                                          1,
                                          QT_TRANSLATE_NOOP("Settings", "What the receiver tunes with")};
constexpr OptionSetting kScanMode = {
    "opbScanMode",
    QT_TRANSLATE_NOOP("Settings", "Scan Mode"),
    &ReceiverSettings::scanMode,
    kScanModes,
    1,
    QT_TRANSLATE_NOOP("Settings", "When a scan that has stopped on a signal goes on")};

constexpr SliderSetting kSliders[] = {
    {"Slider1", "lblVol", QT_TRANSLATE_NOOP("Settings", "V&olume"), &ReceiverSettings::volume, 50,
     QT_TRANSLATE_NOOP("Settings", "Volume, 0 to 50")},
    {"Slider2", "lblSql", QT_TRANSLATE_NOOP("Settings", "S&quelch"), &ReceiverSettings::squelch, 9,
     QT_TRANSLATE_NOOP("Settings", "Squelch, 0 to 9")},
};

}  // namespace

Settings1Page::Settings1Page(Document& document, QWidget* parent)
    : QWidget(parent), controls_("Settings", document, *this), table_(nullptr)
{
    auto* page = new QVBoxLayout(this);
    page->addLayout(BuildOptions());
    table_ = new VfoTable(document, this);
    auto* caption = new QLabel(Designed(QT_TR_NOOP("VFO &bands:")));
    caption->setBuddy(table_);
    page->addWidget(caption);
    page->addWidget(table_, 1);
    page->addLayout(BuildTransferRow());

    connect(table_, &VfoTable::RowChosen, this, [this](int tableRow) { emit ModifyRequested(tableRow - 1); });
    controls_.Show();
}

QLayout* Settings1Page::BuildOptions()
{
    OptionGroup* model = controls_.Add(ModelSetting());
    for (int sibling = kFirstSibling; sibling <= kLastSibling; ++sibling) {
        model->Button(sibling)->setEnabled(false);
        model->Button(sibling)->setToolTip(
            Designed(QT_TR_NOOP("A sibling model; kept when a file or receiver has it")));
    }

    auto* sound = new QGroupBox(Designed(QT_TR_NOOP("Sound")));
    auto* sliders = new QGridLayout(sound);
    for (const SliderSetting& slider : kSliders)
        controls_.Add(slider, *sliders);
    sliders->setRowStretch(sliders->rowCount(), 1);

    auto* row = new QHBoxLayout;
    row->addWidget(model);
    row->addWidget(controls_.Add(kOperatingMode));
    row->addWidget(controls_.Add(kScanMode));
    row->addWidget(sound, 1);
    return row;
}

QLayout* Settings1Page::BuildTransferRow()
{
    const TransferButtons buttons("cmbRxData1", Designed(QT_TR_NOOP("Rea&d Settings")), "cmbTxData1",
                                  Designed(QT_TR_NOOP("Write Settin&gs")));
    buttons.read->setStatusTip(Designed(QT_TR_NOOP("Read all settings and VFO bands from the receiver")));
    buttons.write->setStatusTip(
        Designed(QT_TR_NOOP("Write all settings, VFO bands and presets to the receiver")));
    connect(buttons.read, &QPushButton::clicked, this, &Settings1Page::ReadRequested);
    connect(buttons.write, &QPushButton::clicked, this, &Settings1Page::WriteRequested);
    return buttons.row;
}

void Settings1Page::GoToVfoRow(int row)
{
    table_->SelectTableRow(row + 1);
}

int Settings1Page::SelectedVfoRow() const
{
    return table_->CurrentTableRow();
}

bool Settings1Page::Shows(int setting)
{
    using S = ReceiverSettings;
    for (const auto shown : {&S::model, &S::operatingMode, &S::scanMode, &S::volume, &S::squelch})
        if (setting == SettingIndex(shown))
            return true;
    return false;
}

}  // namespace rqm5
