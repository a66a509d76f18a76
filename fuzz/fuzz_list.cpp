// A list of channels from any other program.

#include <cstdint>
#include <string_view>

#include "files/list_encoding.h"
#include "files/list_file.h"
#include "files/list_map.h"
#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/utf8.h"
#include "memory/named_rows.h"
#include "memory/paste_plan.h"
#include "memory/receiver_range.h"
#include "memory/start_image.h"

namespace rqm5::fuzz {
namespace {

const CloneImage& FreshImage()
{
    static const CloneImage image = StartUpImage(0);
    return image;
}

/// What was found out, written down and read back, reads the list the same way.
void RequireStableForm(std::string_view text, const ListTable& table)
{
    const auto form = ParseForm(FormatForm(FormOf(table)));
    Require(std::holds_alternative<ListForm>(form), "a form that was written can be read");
    ListForm again = std::get<ListForm>(form);
    again.encoding = table.encoding;
    const ListTable second = ReadTable(text, again);
    Require(second.unknown.empty() && second.records.size() == table.records.size(),
            "a form finds its columns again");
    Require(FormatForm(FormOf(second)) == FormatForm(FormOf(table)), "a form is stable");
}

void CheckPlan(const PastePlan& plan)
{
    for (const PlannedRow& row : plan) {
        if (!row.IsTaken())
            continue;
        Require(row.row >= 0 && row.row < kRadioRows, "a channel goes to a row of the receiver");
        Require(IsInReceiverRange(row.channel.frequency), "what is taken is in the receiver's range");
        RequireEncodable(row.channel, RowKind::Memory);
        Require(IsValidUtf8(row.channel.note), "notes are text");
    }
}

/// A list that this program writes comes back without any change.
void RequireStableExport(const CloneImage& image)
{
    const ListChoice choice{{{0, kRadioRows}}, ListColumns(), DecimalSign::Comma};
    for (const PlannedRow& row : PlanNamed(image, ReadChannelList(FormatList(image, choice)))) {
        Require(row.IsTaken(), "an exported row is taken back");
        auto back = static_cast<const ChannelContents&>(row.channel);
        const ChannelContents& there = image.MemData(row.row);
        back.blank = there.blank;
        Require(back == there, "no code moves");
    }
}

void CheckList(std::string_view text)
{
    Require(IsValidUtf8(DecodeList(text).text), "whatever comes is decoded to UTF-8");
    const ListTable table = ReadTable(text);
    const std::vector<ListedChannel> channels = ReadChannels(table);
    for (const ListedChannel& channel : channels)
        Require(!channel.source.empty(), "every row says where it comes from");
    if (IsPicked(text, 16))
        RequireStableForm(text, table);
    if (channels.empty() || !IsPicked(text, 8))
        return;
    const PastePlan plan = PlanOn(FreshImage(), RowsOf(RowsOnFrom(FreshImage(), 0)), channels);
    CheckPlan(plan);
    CheckPlan(PlanNamed(FreshImage(), channels));
    if (!IsPicked(text, 64))
        return;
    CloneImage image = FreshImage();
    ApplyPlan(plan, image);
    RequireSoundImage(image);
    RequireStableExport(image);
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckList({reinterpret_cast<const char*>(data), size});
    return 0;
}
