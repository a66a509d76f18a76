#include "settings/setting_texts.h"

#include <array>

#include "image/receiver_model.h"

namespace rqm5 {
namespace {

using Choices = std::array<const char*, 6>;

constexpr Choices kLamp = {MESSAGE("OFF"), MESSAGE("5sec"), MESSAGE("ON")};
constexpr Choices kAutoPowerOff = {MESSAGE("Off"), "30", "60", "90"};
constexpr Choices kBugLevel = {"1", "2", "3", "4", "5"};
constexpr Choices kScanMode = {MESSAGE("Busy Scan"), MESSAGE("Timer Scan")};
constexpr Choices kKeyFunction = {MESSAGE("Push"), MESSAGE("Hold")};
constexpr Choices kMoniKey = {MESSAGE("Monitor"), MESSAGE("Mute")};

struct Words
{
    const char* caption;
    const Choices* choices = nullptr;  ///< null for a number and for a check box
};

/// In the order of kSettingFields.
constexpr std::array<Words, kSettingsInWords> kWords = {{
    {MESSAGE("Model")},
    {MESSAGE("Operating Mode")},
    {MESSAGE("Volume")},
    {MESSAGE("Squelch")},
    {MESSAGE("Scan Mode"), &kScanMode},
    {MESSAGE("Lamp"), &kLamp},
    {MESSAGE("Auto Power Off (minutes)"), &kAutoPowerOff},
    {MESSAGE("Bug Sensitive Level"), &kBugLevel},
    {MESSAGE("MONI Key Function"), &kKeyFunction},
    {MESSAGE("MONI Key"), &kMoniKey},
    {MESSAGE("Battery Save")},
    {MESSAGE("Keylock")},
    {MESSAGE("Write Protect")},
    {MESSAGE("Beep")},
    {MESSAGE("Bell")},
    {MESSAGE("Attenuator")},
    {MESSAGE("Auto Step")},
    {MESSAGE("Earphone Antenna")},
    {MESSAGE("SW bar antenna")},
    {MESSAGE("AM bar antenna")},
}};

/// The numbers of the operating modes have gaps, and a receiver may be in none of them.
Message OperatingModeText(int mode)
{
    switch (mode) {
        case 0:
            return MESSAGE("VFO");
        case 1:
            return MESSAGE("Memory");
        case 11:
            return MESSAGE("Preset");
        default:
            return MESSAGE("none");
    }
}

}  // namespace

Message SettingCaption(int setting)
{
    return kWords.at(static_cast<std::size_t>(setting)).caption;
}

Message SettingValueText(int setting, int value)
{
    const SettingField& field = kSettingFields.at(static_cast<std::size_t>(setting));
    if (field.flag != nullptr)
        return value != 0 ? MESSAGE("on") : MESSAGE("off");
    if (field.value == &ReceiverSettings::operatingMode)
        return OperatingModeText(value);
    if (field.value == &ReceiverSettings::model && !ModelName(value).empty())
        return ModelName(value);
    const Choices* choices = kWords.at(static_cast<std::size_t>(setting)).choices;
    const bool hasName = choices != nullptr && value >= 0 && value < static_cast<int>(choices->size()) &&
                         (*choices)[static_cast<std::size_t>(value)] != nullptr;
    return hasName ? Message((*choices)[static_cast<std::size_t>(value)]) : Message(value);
}

Message SettingText(const ReceiverSettings& settings, int setting)
{
    return SettingValueText(setting, kSettingFields.at(static_cast<std::size_t>(setting)).Get(settings));
}

}  // namespace rqm5
