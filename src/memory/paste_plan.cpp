#include "memory/paste_plan.h"

#include <algorithm>
#include <set>

#include "memory/channel_editor.h"
#include "memory/named_rows.h"
#include "memory/receiver_range.h"

namespace rqm5 {
namespace {

constexpr int kOptionUnit = 16;

bool HoldsAnything(const Channel& row)
{
    return row.HasChannel() || !row.note.empty();
}

/// What a row becomes when a channel comes to it.
void Settle(const CloneImage& image, const ListedChannel& comes, PlannedRow& planned)
{
    const Channel& present = image.MemData(planned.row);
    if (comes.given == Parts::All()) {
        planned.channel = comes.channel;
    } else if (comes.given.Has(kFrequency)) {
        planned.channel = NewChannel(image, comes.channel.frequency);
        CopyParts(comes.channel, comes.given, planned.channel);
    } else if (present.HasChannel()) {
        planned.channel = present;
        CopyParts(comes.channel, comes.given, planned.channel);
    } else {
        planned.refusal = MESSAGE("the row holds no channel, and no frequency comes");
    }
}

/// The same where a list names the row: what it does not say of the channel there stays as it is.
void SettleNamed(const CloneImage& image, const ListedChannel& comes, PlannedRow& planned)
{
    if (!image.MemData(planned.row).HasChannel()) {
        Settle(image, comes, planned);
        return;
    }
    const Channel& present = image.MemData(planned.row);
    Channel& channel = planned.channel;
    channel = present;
    CopyParts(comes.channel, comes.given, channel);
    // A value that stays is shown as it was.
    if (channel.option / kOptionUnit == present.option / kOptionUnit)
        channel.isSecretEdited = present.isSecretEdited;
    if (channel.IsSkipped() == present.IsSkipped())
        channel.option = static_cast<std::uint8_t>(channel.option / kOptionUnit * kOptionUnit +
                                                   present.option % kOptionUnit);
    if (channel.carrier == present.carrier)
        channel.isCarrierImported = present.isCarrierImported;
}

void Refuse(PlannedRow& planned, Verdict verdict)
{
    if (verdict != Verdict::Accepted)
        planned.refusal = VerdictText(verdict);
}

bool TakesFrequency(const CloneImage& image, const PlannedRow& planned)
{
    return planned.IsTaken() && planned.channel.HasChannel() &&
           planned.channel.frequency != image.MemData(planned.row).frequency;
}

/// Refuses what the receiver or its region does not take. What a row holds already may stay.
void JudgeEachRow(const CloneImage& image, PastePlan& plan)
{
    CloneImage alone = image;
    for (int row = kSearchPass.rows.first; row <= kSearchPass.rows.Last(); ++row)
        alone.MemData(row).enabled = false;
    for (PlannedRow& planned : plan)
        if (TakesFrequency(image, planned))
            Refuse(planned, JudgeFrequency(alone, planned.row, planned.channel.frequency));
}

/// Refuses the second of two equal frequencies in the Search Pass list, as it will be. A refused channel
/// leaves its row as it was, which another one may equal then: so it is looked at until nothing more is
/// refused.
void JudgeTogether(const CloneImage& image, PastePlan& plan)
{
    for (bool isSettled = false; !isSettled;) {
        isSettled = true;
        CloneImage after = image;
        for (const PlannedRow& planned : plan)
            if (planned.IsTaken())
                ClearMemoryRow(after, planned.row);
        for (PlannedRow& planned : plan) {
            if (!planned.IsTaken())
                continue;
            if (kSearchPass.rows.Contains(planned.row) && TakesFrequency(image, planned))
                Refuse(planned, JudgeFrequency(after, planned.row, planned.channel.frequency));
            isSettled = isSettled && planned.IsTaken();
            if (planned.IsTaken())
                after.MemData(planned.row) = planned.channel;
        }
    }
}

void Judge(const CloneImage& image, PastePlan& plan)
{
    JudgeEachRow(image, plan);
    JudgeTogether(image, plan);
}

}  // namespace

std::vector<ListedChannel> Listed(const std::vector<Channel>& channels)
{
    std::vector<ListedChannel> listed(channels.size());
    for (std::size_t i = 0; i < channels.size(); ++i) {
        listed[i].channel = channels[i];
        listed[i].given = Parts::All();
    }
    return listed;
}

PastePlan PlanPaste(const CloneImage& image, const RowList& rows, const std::vector<ListedChannel>& channels)
{
    PastePlan plan;
    plan.reserve(channels.size());
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const ListedChannel& comes = channels[i];
        PlannedRow planned{.source = comes.source,
                           .channel = comes.channel,
                           .refusal = comes.refusal,
                           .remark = comes.remark};
        if (i < rows.size())
            planned.row = rows[i];
        else if (planned.refusal.empty())
            planned.refusal = MESSAGE("there is no row left for it");
        if (planned.IsTaken())
            Settle(image, comes, planned);
        plan.push_back(std::move(planned));
    }
    Judge(image, plan);
    return plan;
}

PastePlan PlanOn(const CloneImage& image, const RowList& rows, const std::vector<ListedChannel>& channels)
{
    PastePlan plan;
    plan.reserve(channels.size());
    auto next = rows.begin();
    for (const ListedChannel& comes : channels) {
        PlannedRow planned{.source = comes.source,
                           .channel = comes.channel,
                           .refusal = comes.refusal,
                           .remark = comes.remark};
        if (planned.IsTaken() && comes.given.Has(kFrequency) && !IsInReceiverRange(comes.channel.frequency))
            Refuse(planned, Verdict::OutOfRange);
        if (planned.IsTaken() && next == rows.end())
            planned.refusal = MESSAGE("there is no row left for it");
        if (planned.IsTaken()) {
            planned.row = *next++;
            Settle(image, comes, planned);
        }
        plan.push_back(std::move(planned));
    }
    Judge(image, plan);
    return plan;
}

PastePlan PlanNamed(const CloneImage& image, const std::vector<ListedChannel>& channels)
{
    PastePlan plan;
    plan.reserve(channels.size());
    std::set<int> taken;
    for (const ListedChannel& comes : channels) {
        PlannedRow planned{.source = comes.source,
                           .channel = comes.channel,
                           .refusal = comes.refusal,
                           .remark = comes.remark};
        const NamedRow named = FindNamedRow(image, comes.place);
        planned.row = named.row == NamedRow::kNone ? PlannedRow::kNowhere : named.row;
        if (planned.refusal.empty())
            planned.refusal = named.refusal;
        if (planned.IsTaken() && !taken.insert(planned.row).second)
            planned.refusal = MESSAGE("the list names this row twice");
        if (planned.IsTaken())
            SettleNamed(image, comes, planned);
        plan.push_back(std::move(planned));
    }
    Judge(image, plan);
    return plan;
}

PastePlan PlanParts(const CloneImage& image, const RowList& rows, const std::vector<ListedChannel>& channels,
                    Parts parts)
{
    PastePlan plan;
    for (std::size_t i = 0; i < rows.size() && !channels.empty(); ++i) {
        const ListedChannel& comes = channels[i % channels.size()];
        PlannedRow planned{
            .row = rows[i], .source = comes.source, .channel = {}, .refusal = comes.refusal, .remark = {}};
        const Parts given = comes.given.And(parts);
        const bool hasFrequency = given.Has(kFrequency) && comes.channel.HasChannel();
        if (given.IsEmpty() || (!image.MemData(rows[i]).HasChannel() && !hasFrequency))
            continue;
        planned.channel = image.MemData(rows[i]);
        if (!planned.channel.HasChannel())
            planned.channel = NewChannel(image, comes.channel.frequency);
        CopyParts(comes.channel, given, planned.channel);
        plan.push_back(std::move(planned));
    }
    Judge(image, plan);
    return plan;
}

bool NeedsLook(const CloneImage& image, const PastePlan& plan)
{
    return std::ranges::any_of(plan, [&image](const PlannedRow& planned) {
        return !planned.IsTaken() || !planned.remark.empty() || HoldsAnything(image.MemData(planned.row));
    });
}

RowList RowsWritten(const PastePlan& plan)
{
    RowList rows;
    for (const PlannedRow& planned : plan)
        if (planned.IsTaken())
            rows.push_back(planned.row);
    return rows;
}

void ApplyPlan(const PastePlan& plan, CloneImage& image)
{
    for (const PlannedRow& planned : plan)
        if (planned.IsTaken())
            image.MemData(planned.row) = planned.channel;
}

}  // namespace rqm5
