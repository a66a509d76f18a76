#pragma once

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

    /// The model region 0 to 3 that tables, limits and defaults follow. The sibling model's options
    /// (4 and 5) behave like region 3.
    int ModelNo() const { return model < 0 ? 0 : model > 3 ? 3 : model; }

    friend bool operator==(const ReceiverSettings&, const ReceiverSettings&) = default;
};

}  // namespace rqm5
