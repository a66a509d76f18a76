#include "image/channel.h"

#include "image/number_text.h"
#include "image/receiver_model.h"
#include "image/value_tables.h"
#include "language/message.h"

namespace rqm5 {

const std::array<const char*, kTextColumns> kColumnNames = {
    MESSAGE("Frequency"),       MESSAGE("Mode"),    MESSAGE("Step"), MESSAGE("Option"),
    MESSAGE("Secret code"),     MESSAGE("Carrier"), MESSAGE("Tone"), MESSAGE("Shift"),
    MESSAGE("Shift frequency"), MESSAGE("Note")};

namespace {

std::string Text(std::string_view text)
{
    return std::string(text);
}

/// What a model region shows in place of a text; nullptr where it shows the text.
const char* Override(const ChannelContents& channel, RowKind kind, int region, Column column)
{
    if (region == kNoRegion || (column != kSecret && column != kCarrier))
        return nullptr;
    const Region& has = RegionOf(region);
    if (kind == RowKind::Vfo)
        return (column == kSecret ? has.hasSecretCode : has.hasCarrier) ? nullptr : "-";
    if (column == kSecret)
        return !has.showsSkipMark ? nullptr : channel.IsSkipped() ? "*" : "";
    return has.hidesCarrier ? "-" : nullptr;
}

std::string_view OptionText(const ChannelContents& channel, RowKind kind)
{
    const int code = channel.option / 16;
    if (kind == RowKind::Vfo)
        return TextAt(OptionName, code);
    if (code == kSecretOption && !channel.isSecretEdited)
        return "Scrt";
    return code < static_cast<int>(OptionName.size()) ? TextAt(OptionName, code) : "None";
}

std::string_view ShiftText(int value, RowKind kind)
{
    // A VFO row goes by the high nibble, a memory row by the exact value.
    const bool isKnown = kind == RowKind::Vfo || value % 16 == 0;
    const std::string_view text = isKnown ? TextAt(ShiftName, value / 16) : std::string_view();
    return text.empty() ? ShiftName[0] : text;
}

std::string CarrierCellText(const ChannelContents& channel)
{
    return CarrierText(channel.isCarrierImported ? channel.carrier - 1 : channel.carrier);
}

}  // namespace

std::string CellText(const ChannelContents& channel, RowKind kind, int region, Column column)
{
    if (const char* shown = Override(channel, kind, region, column))
        return shown;
    if (channel.IsBlank(column))
        return {};
    switch (column) {
        case kFrequency:
            return FormatMegahertz(channel.frequency);
        case kMode:
            return Text(TextAt(ModeName, channel.mode));
        case kStep:
            return Text(TextAt(StepName, channel.step));
        case kOption:
            return Text(OptionText(channel, kind));
        case kSecret:
            return std::to_string(channel.secret);
        case kCarrier:
            return CarrierCellText(channel);
        case kTone:
            return Text(TextAt(ToneName, channel.tone));
        case kShift:
            return Text(ShiftText(channel.shift, kind));
        case kShiftFrequency:
            return FormatMegahertz(channel.shiftFrequency);
        default:
            return {};
    }
}

std::string CellText(const Channel& channel, RowKind kind, int region, Column column)
{
    const ChannelContents& contents = channel;
    return column == kNote ? channel.note : CellText(contents, kind, region, column);
}

}  // namespace rqm5
