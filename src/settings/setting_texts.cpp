#include "settings/setting_texts.h"

#include <array>
#include <string_view>

#include "image/value_tables.h"

namespace rqm5 {
namespace {

using Choices = std::array<std::string_view, 6>;

constexpr Choices kNumber = {};
constexpr Choices kModels = {"RQ-M5 J", "RQ-M5 E", "RQ-M5 T", "RQ-M5 K", "Sibling 1", "Sibling 2"};
constexpr Choices kLamp = {"OFF", "5sec", "ON"};
constexpr Choices kAutoPowerOff = {"Off", "30", "60", "90"};
constexpr Choices kBugLevel = {"1", "2", "3", "4", "5"};
constexpr Choices kScanMode = {"Busy Scan", "Timer Scan"};
constexpr Choices kKeyFunction = {"Push", "Hold"};
constexpr Choices kMoniKey = {"Monitor", "Mute"};

struct Row
{
    std::string_view caption;
    bool ReceiverSettings::*flag;
    int ReceiverSettings::*value;
    const Choices* choices;
};

constexpr Row Switch(std::string_view caption, bool ReceiverSettings::*flag)
{
    return {caption, flag, nullptr, nullptr};
}

constexpr Row Value(std::string_view caption, int ReceiverSettings::*value, const Choices& choices = kNumber)
{
    return {caption, nullptr, value, &choices};
}

using S = ReceiverSettings;
constexpr Row kRows[] = {
    Value("Model", &S::model, kModels),
    Value("Operating Mode", &S::operatingMode),
    Value("Volume", &S::volume),
    Value("Squelch", &S::squelch),
    Value("Scan Mode", &S::scanMode, kScanMode),
    Value("Lamp", &S::lamp, kLamp),
    Value("Auto Power Off (minutes)", &S::autoPowerOff, kAutoPowerOff),
    Value("Bug Sensitive Level", &S::bugLevel, kBugLevel),
    Value("MONI Key Function", &S::keyFunction, kKeyFunction),
    Value("MONI Key", &S::moniKey, kMoniKey),
    Switch("Battery Save", &S::batterySave),
    Switch("Keylock", &S::keyLock),
    Switch("Write Protect", &S::writeProtect),
    Switch("Beep", &S::beep),
    Switch("Bell", &S::bell),
    Switch("Attenuator", &S::attenuator),
    Switch("Auto Step", &S::autoStep),
    Switch("Earphone Antenna", &S::earphoneAntenna),
    Switch("SW bar antenna", &S::barAntennaSw),
    Switch("AM bar antenna", &S::barAntennaAm),
};

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

std::string ValueText(const Row& row, const ReceiverSettings& settings)
{
    if (row.flag)
        return settings.*row.flag ? "on" : "off";
    const int value = settings.*row.value;
    if (row.value == &S::operatingMode)
        return OperatingModeText(value);
    const std::string_view name = TextAt(*row.choices, value);
    return name.empty() ? std::to_string(value) : std::string(name);
}

}  // namespace

std::vector<SettingText> SettingTexts(const ReceiverSettings& settings)
{
    std::vector<SettingText> texts;
    for (const Row& row : kRows)
        texts.push_back({std::string(row.caption), ValueText(row, settings)});
    return texts;
}

}  // namespace rqm5
