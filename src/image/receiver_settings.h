#pragma once

#include <array>

#include "image/receiver_model.h"

namespace rqm5 {

/// The set-up settings as the settings controls show them. The initial values are the defaults of a
/// fresh image in region 0.
struct ReceiverSettings
{
    static constexpr int kNoOption = -1;

    int model = 0;          ///< checked option of opbModel, 0 to 4; the byte that goes to the receiver
    int operatingMode = 0;  ///< checked option of opbOpMode: 0 VFO, 1 Memory, 11 Preset, or kNoOption
    int volume = 30;        ///< 0 to 50
    int squelch = 3;        ///< 0 to 9

    int lamp = 1;          ///< 0 OFF, 1 5sec, 2 ON
    int autoPowerOff = 0;  ///< 0 Off, 1 30, 2 60, 3 90 (minutes)
    int bugLevel = 2;      ///< 0 to 4, captioned "1" to "5"
    int scanMode = 0;      ///< 0 Busy Scan, 1 Timer Scan
    int keyFunction = 0;   ///< MONI key function: 0 Push, 1 Hold
    int moniKey = 0;       ///< MONI key: 0 Monitor, 1 Mute

    bool batterySave = true;
    bool keyLock = false;
    bool writeProtect = true;
    bool earphoneAntenna = false;
    bool beep = true;
    bool attenuator = false;
    bool bell = false;
    bool autoStep = true;
    bool barAntennaSw = true;
    bool barAntennaAm = true;

    /// The count of Search Pass channels as it came with the settings. No control shows it; models without a
    /// fixed value for that byte keep it.
    int passCount = 0x60;

    /// The model region 0 to 3 that tables, limits and defaults follow. The sibling model's options
    /// (4 and 5) behave like region 3.
    int ModelNo() const { return RegionNumber(model); }

    friend bool operator==(const ReceiverSettings&, const ReceiverSettings&) = default;
};

/// A setting, whichever kind it is of: one of the two pointers is null.
struct SettingField
{
    int ReceiverSettings::*value;
    bool ReceiverSettings::*flag;

    int Get(const ReceiverSettings& settings) const
    {
        return flag != nullptr ? (settings.*flag ? 1 : 0) : settings.*value;
    }

    void Set(ReceiverSettings& settings, int to) const
    {
        if (flag != nullptr)
            settings.*flag = to != 0;
        else
            settings.*value = to;
    }

    friend bool operator==(const SettingField&, const SettingField&) = default;
};

inline constexpr int kSettings = 21;

/// Every setting, in the order of the settings pages; passCount, which no page shows, is the last.
extern const std::array<SettingField, kSettings> kSettingFields;

/// Its place among them.
int SettingIndex(int ReceiverSettings::*value);
int SettingIndex(bool ReceiverSettings::*flag);

}  // namespace rqm5
