#include "settings/settings2_page.h"

#include <QCheckBox>
#include <QGridLayout>

#include "ui/form_texts.h"
#include "ui/tall_area.h"
#include "ui/transfer_buttons.h"

namespace rqm5 {
namespace {

constexpr Option kLamp[] = {{0, QT_TRANSLATE_NOOP("Settings", "OFF")},
                            {1, QT_TRANSLATE_NOOP("Settings", "5sec")},
                            {2, QT_TRANSLATE_NOOP("Settings", "ON")}};
constexpr Option kAutoPowerOff[] = {{0, QT_TRANSLATE_NOOP("Settings", "Off")},
                                    {1, QT_TRANSLATE_NOOP("Settings", "30")},
                                    {2, QT_TRANSLATE_NOOP("Settings", "60")},
                                    {3, QT_TRANSLATE_NOOP("Settings", "90")}};
constexpr Option kBugLevels[] = {{0, QT_TRANSLATE_NOOP("Settings", "1")},
                                 {1, QT_TRANSLATE_NOOP("Settings", "2")},
                                 {2, QT_TRANSLATE_NOOP("Settings", "3")},
                                 {3, QT_TRANSLATE_NOOP("Settings", "4")},
                                 {4, QT_TRANSLATE_NOOP("Settings", "5")}};
constexpr Option kKeyFunctions[] = {{0, QT_TRANSLATE_NOOP("Settings", "Push")},
                                    {1, QT_TRANSLATE_NOOP("Settings", "Hold")}};
constexpr Option kMoniKeys[] = {{0, QT_TRANSLATE_NOOP("Settings", "Monitor")},
                                {1, QT_TRANSLATE_NOOP("Settings", "Mute")}};

constexpr OptionSetting kOptionSettings[] = {
    {"optLamp", QT_TRANSLATE_NOOP("Settings", "Lamp"), &ReceiverSettings::lamp, kLamp, 1,
     QT_TRANSLATE_NOOP("Settings", "How long the display stays lit")},
    {"opbAPO", QT_TRANSLATE_NOOP("Settings", "Auto Power Off (minutes)"), &ReceiverSettings::autoPowerOff,
     kAutoPowerOff, 2,
     QT_TRANSLATE_NOOP("Settings", "After how many minutes without use the receiver switches itself off")},
    {"opbBug", QT_TRANSLATE_NOOP("Settings", "Bug Sensitive Level"), &ReceiverSettings::bugLevel, kBugLevels,
     3, QT_TRANSLATE_NOOP("Settings", "How sensitive the search for hidden transmitters is")},
    {"opbKeyFunc", QT_TRANSLATE_NOOP("Settings", "MONI Key Function"), &ReceiverSettings::keyFunction,
     kKeyFunctions, 1,
     QT_TRANSLATE_NOOP("Settings",
                       "Whether the MONI key works while it is pushed or until it is pushed again")},
    {"opbMONI", QT_TRANSLATE_NOOP("Settings", "MONI Key"), &ReceiverSettings::moniKey, kMoniKeys, 1,
     QT_TRANSLATE_NOOP("Settings", "What the MONI key does")},
};

/// A titled box of check boxes.
struct CheckGroup
{
    const char* title;
    std::array<CheckSetting, 3> checks;  ///< unused places have no name
};

constexpr CheckGroup kCheckGroups[] = {
    {QT_TRANSLATE_NOOP("Settings", "Power and keys"),
     {{{"chkBS", QT_TRANSLATE_NOOP("Settings", "Batter&y Save"), &ReceiverSettings::batterySave,
        QT_TRANSLATE_NOOP("Settings", "Save the battery while no signal is received")},
       {"chkKey", QT_TRANSLATE_NOOP("Settings", "&Keylock"), &ReceiverSettings::keyLock,
        QT_TRANSLATE_NOOP("Settings", "Lock the receiver's keys")},
       {"chkWP", QT_TRANSLATE_NOOP("Settings", "Write &Protect"), &ReceiverSettings::writeProtect,
        QT_TRANSLATE_NOOP("Settings",
                          "Protect the receiver's memory channels from being overwritten on its keys")}}}},
    {QT_TRANSLATE_NOOP("Settings", "Sound"),
     {{{"chkBeep", QT_TRANSLATE_NOOP("Settings", "&Beep"), &ReceiverSettings::beep,
        QT_TRANSLATE_NOOP("Settings", "Beep when a key is pressed")},
       {"chkBell", QT_TRANSLATE_NOOP("Settings", "Be&ll"), &ReceiverSettings::bell,
        QT_TRANSLATE_NOOP("Settings", "Ring when a signal comes in")},
       {}}}},
    {QT_TRANSLATE_NOOP("Settings", "Reception"),
     {{{"chkATT", QT_TRANSLATE_NOOP("Settings", "Atten&uator"), &ReceiverSettings::attenuator,
        QT_TRANSLATE_NOOP("Settings", "Weaken strong signals")},
       {"chkAutoStep", QT_TRANSLATE_NOOP("Settings", "Aut&o Step"), &ReceiverSettings::autoStep,
        QT_TRANSLATE_NOOP("Settings", "Let the receiver choose the tuning step of a band")},
       {}}}},
    {QT_TRANSLATE_NOOP("Settings", "Antennas"),
     {{{"chkEar", QT_TRANSLATE_NOOP("Settings", "Earphone &Antenna"), &ReceiverSettings::earphoneAntenna,
        QT_TRANSLATE_NOOP("Settings", "Use the cord of the earphone as antenna")},
       {"chkBarSW", QT_TRANSLATE_NOOP("Settings", "&SW bar antenna"), &ReceiverSettings::barAntennaSw,
        QT_TRANSLATE_NOOP("Settings", "Use the built-in bar antenna on short wave")},
       {"chkBarAM", QT_TRANSLATE_NOOP("Settings", "A&M bar antenna"), &ReceiverSettings::barAntennaAm,
        QT_TRANSLATE_NOOP("Settings", "Use the built-in bar antenna on medium wave")}}}},
};

constexpr int kBoxColumns = 3;

}  // namespace

Settings2Page::Settings2Page(Document& document, QWidget* parent)
    : QWidget(parent), controls_("Settings", document, *this)
{
    auto* page = new QVBoxLayout(this);
    auto* area = new TallArea(BuildSettings(), this);
    page->addWidget(area, 1);
    page->addLayout(BuildTransferRow());
    controls_.Show();
}

QWidget* Settings2Page::BuildSettings()
{
    auto* boxes = new QWidget;
    auto* grid = new QGridLayout(boxes);
    grid->setContentsMargins(0, 0, 0, 0);
    int place = 0;
    const auto add = [grid, &place](QWidget* box) {
        grid->addWidget(box, place / kBoxColumns, place % kBoxColumns);
        ++place;
    };
    for (const OptionSetting& setting : kOptionSettings)
        add(controls_.Add(setting));
    for (const CheckGroup& group : kCheckGroups) {
        auto* box = new QGroupBox(Designed(group.title));
        auto* column = new QVBoxLayout(box);
        for (const CheckSetting& check : group.checks)
            if (check.name != nullptr)
                column->addWidget(controls_.Add(check));
        column->addStretch();
        add(box);
    }
    for (int column = 0; column < kBoxColumns; ++column)
        grid->setColumnStretch(column, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return boxes;
}

QLayout* Settings2Page::BuildTransferRow()
{
    const TransferButtons buttons("cmbRxData2", Designed(QT_TR_NOOP("Rea&d Settings")), "cmbTxData2",
                                  Designed(QT_TR_NOOP("Write Settin&gs")));
    buttons.read->setStatusTip(Designed(QT_TR_NOOP("Read all settings and VFO bands from the receiver")));
    buttons.write->setStatusTip(
        Designed(QT_TR_NOOP("Write all settings, VFO bands and presets to the receiver")));
    connect(buttons.read, &QPushButton::clicked, this, &Settings2Page::ReadRequested);
    connect(buttons.write, &QPushButton::clicked, this, &Settings2Page::WriteRequested);
    return buttons.row;
}

}  // namespace rqm5
