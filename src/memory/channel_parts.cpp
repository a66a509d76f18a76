#include "memory/channel_parts.h"

#include "image/number_text.h"
#include "image/value_tables.h"
#include "language/message.h"
#include "vfo/vfo_defaults.h"

namespace rqm5 {
namespace {

constexpr int kSkipBits = 16;  ///< of the option byte: the option above, the mark below

void CopyField(const Channel& from, const CodeField& field, Channel& to)
{
    if (field.column == kOption) {
        to.option = static_cast<std::uint8_t>(from.option / kSkipBits * kSkipBits + to.option % kSkipBits);
        to.isSecretEdited = from.isSecretEdited;
        return;
    }
    to.*field.value = from.*field.value;
    if (field.column == kCarrier)
        to.isCarrierImported = from.isCarrierImported;
}

void CopyBlank(const Channel& from, int column, Channel& to)
{
    const unsigned bit = 1U << column;
    to.blank = static_cast<std::uint16_t>((to.blank & ~bit) | (from.blank & bit));
}

}  // namespace

const char* PartName(int part)
{
    return part == kSkipPart      ? MESSAGE("Skip")
           : part == kEnabledPart ? MESSAGE("Enabled")
                                  : kColumnNames.at(static_cast<std::size_t>(part));
}

void CopyParts(const Channel& from, Parts parts, Channel& to)
{
    for (int column = 0; column < kBlockColumns; ++column)
        if (parts.Has(column))
            CopyBlank(from, column, to);
    for (const CodeField& field : kCodeFields)
        if (parts.Has(field.column))
            CopyField(from, field, to);
    if (parts.Has(kFrequency))
        to.frequency = from.frequency;
    if (parts.Has(kShiftFrequency))
        to.shiftFrequency = from.shiftFrequency;
    if (parts.Has(kNote))
        to.note = from.note;
    if (parts.Has(kSkipPart))
        to.option = static_cast<std::uint8_t>(to.option / kSkipBits * kSkipBits + from.option % kSkipBits);
    if (parts.Has(kEnabledPart))
        to.enabled = from.enabled;
}

Channel NewChannel(const CloneImage& image, std::int64_t hertz)
{
    const int region = image.ModelNo();
    int band = RegionOf(region).vfoBands - 1;
    while (band > 0 && BandLimitOf(band, region).low > Megahertz(hertz))
        --band;
    Channel channel = DefaultVfoRow(region, band);
    channel.frequency = hertz;
    channel.enabled = true;
    return channel;
}

std::string PlainNote(std::string_view text)
{
    std::string note;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        const bool isSecondOfLineEnd = code == '\n' && i > 0 && text[i - 1] == '\r';
        if (!isSecondOfLineEnd)
            note += code < 0x20 || code == 0x7F ? ' ' : text[i];
    }
    return note;
}

}  // namespace rqm5
