#include "image/receiver_settings.h"

#include <algorithm>

namespace rqm5 {
namespace {

using S = ReceiverSettings;

int IndexOf(const SettingField& field)
{
    return static_cast<int>(std::ranges::find(kSettingFields, field) - kSettingFields.begin());
}

}  // namespace

const std::array<SettingField, kSettings> kSettingFields = {{
    {&S::model, nullptr},        {&S::operatingMode, nullptr}, {&S::volume, nullptr},
    {&S::squelch, nullptr},      {&S::scanMode, nullptr},      {&S::lamp, nullptr},
    {&S::autoPowerOff, nullptr}, {&S::bugLevel, nullptr},      {&S::keyFunction, nullptr},
    {&S::moniKey, nullptr},      {nullptr, &S::batterySave},   {nullptr, &S::keyLock},
    {nullptr, &S::writeProtect}, {nullptr, &S::beep},          {nullptr, &S::bell},
    {nullptr, &S::attenuator},   {nullptr, &S::autoStep},      {nullptr, &S::earphoneAntenna},
    {nullptr, &S::barAntennaSw}, {nullptr, &S::barAntennaAm},  {&S::passCount, nullptr},
}};

int SettingIndex(int ReceiverSettings::*value)
{
    return IndexOf({value, nullptr});
}

int SettingIndex(bool ReceiverSettings::*flag)
{
    return IndexOf({nullptr, flag});
}

}  // namespace rqm5
