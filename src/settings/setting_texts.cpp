#include "settings/setting_texts.h"

#include <array>
#include <string_view>

#include "image/receiver_model.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

using Choices = std::array<std::string_view, 6>;

constexpr Choices kLamp = {"OFF", "5sec", "ON"};
constexpr Choices kAutoPowerOff = {"Off", "30", "60", "90"};
constexpr Choices kBugLevel = {"1", "2", "3", "4", "5"};
constexpr Choices kScanMode = {"Busy Scan", "Timer Scan"};
constexpr Choices kKeyFunction = {"Push", "Hold"};
constexpr Choices kMoniKey = {"Monitor", "Mute"};

struct Words
{
    std::string_view caption;
    const Choices* choices = nullptr;  ///< null for a number and for a check box
};

/// In the order of kSettingFields.
constexpr std::array<Words, kSettingsInWords> kWords = {{
    {"Model"},
    {"Operating Mode"},
    {"Volume"},
    {"Squelch"},
    {"Scan Mode", &kScanMode},
    {"Lamp", &kLamp},
    {"Auto Power Off (minutes)", &kAutoPowerOff},
    {"Bug Sensitive Level", &kBugLevel},
    {"MONI Key Function", &kKeyFunction},
    {"MONI Key", &kMoniKey},
    {"Battery Save"},
    {"Keylock"},
    {"Write Protect"},
    {"Beep"},
    {"Bell"},
    {"Attenuator"},
    {"Auto Step"},
    {"Earphone Antenna"},
    {"SW bar antenna"},
    {"AM bar antenna"},
}};

/// The numbers of the operating modes have gaps, and a receiver may be in none of them.
std::string OperatingModeText(int mode)
{
    switch (mode) {
        case 0:
            return "VFO";
        case 1:
            return "Memory";
        case 11:
            return "Preset";
        default:
            return "none";
    }
}

}  // namespace

std::string_view SettingCaption(int setting)
{
    return kWords.at(static_cast<std::size_t>(setting)).caption;
}

std::string SettingValueText(int setting, int value)
{
    const SettingField& field = kSettingFields.at(static_cast<std::size_t>(setting));
    if (field.flag != nullptr)
        return value != 0 ? "on" : "off";
    if (field.value == &ReceiverSettings::operatingMode)
        return OperatingModeText(value);
    const Choices* choices = kWords.at(static_cast<std::size_t>(setting)).choices;
    const std::string_view name = field.value == &ReceiverSettings::model ? ModelName(value)
                                  : choices != nullptr                    ? TextAt(*choices, value)
                                                                          : std::string_view();
    return name.empty() ? std::to_string(value) : std::string(name);
}

std::string SettingText(const ReceiverSettings& settings, int setting)
{
    return SettingValueText(setting, kSettingFields.at(static_cast<std::size_t>(setting)).Get(settings));
}

}  // namespace rqm5
