#include "link/write_record.h"

#include <QCoreApplication>
#include <QStringList>

namespace rqm5 {
namespace {

QString Translate(const char* text)
{
    return QCoreApplication::translate("WriteRecord", text);
}

/// Blocks first to last (counted from 0) of a section, as a person calls them.
QString NameOf(const WriteSection& section, std::size_t first, std::size_t last)
{
    const bool isWhole = first == 0 && last + 1 == section.addresses.size();
    if (isWhole && !section.isPart)
        return Translate(section.many);
    const int number = section.firstNumber + static_cast<int>(first);
    if (first == last)
        return Translate(section.one) + QStringLiteral(" %1").arg(number);
    return Translate("%1 %2 to %3")
        .arg(Translate(section.many))
        .arg(number)
        .arg(section.firstNumber + static_cast<int>(last));
}

}  // namespace

WriteRecord::WriteRecord(const CloneImage& image, const TransferScope& scope, TransferObserver& next)
    : ForwardingObserver(next), scope_(scope)
{
    for (WriteSection& section : PlanWrite(image, scope)) {
        const std::size_t count = section.addresses.size();
        if (count > 0)
            sections_.push_back({std::move(section), std::vector<State>(count, State::NotSent)});
    }
}

/// Goes forward only: an address may stand in the plan twice, and a failed settings part is left behind.
bool WriteRecord::Find(int address, bool written)
{
    for (Place place = next_; place.section < sections_.size(); ++place.section, place.block = 0) {
        const WriteSection& plan = sections_[place.section].plan;
        if (plan.IsRead() == written)
            continue;
        for (; place.block < plan.addresses.size(); ++place.block)
            if (plan.addresses[place.block] == address) {
                next_ = place;
                return true;
            }
    }
    return false;
}

void WriteRecord::SetHere(State state)
{
    Section& section = sections_[next_.section];
    section.states[next_.block] = state;
    failedSection_ = next_.section;
    if (++next_.block == section.states.size())
        next_ = {next_.section + 1, 0};
}

void WriteRecord::BlockDone(int address, bool written)
{
    isUnderWay_ = false;
    if (Find(address, written))
        SetHere(State::Sent);
    ForwardingObserver::BlockDone(address, written);
}

void WriteRecord::BlockFailed(int address, bool written)
{
    isUnderWay_ = false;
    if (Find(address, written))
        SetHere(State::Refused);
    ForwardingObserver::BlockFailed(address, written);
}

void WriteRecord::BlockUnsent(int address, bool written)
{
    isUnderWay_ = false;
    if (Find(address, written))
        failedSection_ = next_.section;
    ForwardingObserver::BlockUnsent(address, written);
}

bool WriteRecord::HasBegun() const
{
    for (const Section& section : sections_)
        for (std::size_t block = 0; !section.plan.IsRead() && block < section.states.size(); ++block)
            if (StateAt(section, block) != State::NotSent)
                return true;
    return false;
}

bool WriteRecord::IsCancelled()
{
    const bool isCancelled = ForwardingObserver::IsCancelled();
    isUnderWay_ = isUnderWay_ || !isCancelled;
    return isCancelled;
}

void WriteRecord::Message(const Problem& problem)
{
    const bool goesOn = scope_.GoesOnAfterSettings() && !sections_[failedSection_].plan.ofMemory;
    std::size_t count = sections_.size();
    while (goesOn && sections_[count - 1].plan.ofMemory)
        --count;
    Problem told = problem;
    told.aftermath = Describe(count);
    if (goesOn)
        told.aftermath += ' ' + Translate("The memory is written next.").toStdString();
    ForwardingObserver::Message(told);
}

WriteRecord::State WriteRecord::StateAt(const Section& section, std::size_t block) const
{
    const bool isNext = isUnderWay_ && next_.section < sections_.size() &&
                        &section == &sections_[next_.section] && block == next_.block;
    return isNext ? State::UnderWay : section.states[block];
}

std::string WriteRecord::BlocksThatAre(State state, std::size_t sectionCount) const
{
    QStringList names;
    for (std::size_t i = 0; i < sectionCount; ++i) {
        const Section& section = sections_[i];
        const std::size_t count = section.plan.IsRead() ? 0 : section.states.size();
        for (std::size_t first = 0; first < count; ++first) {
            std::size_t end = first;
            while (end < count && StateAt(section, end) == state)
                ++end;
            if (end == first)
                continue;
            names << NameOf(section.plan, first, end - 1);
            first = end;
        }
    }
    return names.join(QStringLiteral(", ")).toStdString();
}

std::string WriteRecord::Describe(std::size_t sectionCount) const
{
    const auto names = [&](State state) {
        return QString::fromStdString(BlocksThatAre(state, sectionCount));
    };
    const auto inDoubt = Translate("%1 (may hold its old or its new contents)");
    const QString sent = names(State::Sent);
    QStringList sentences{Translate("Sent: %1.").arg(sent.isEmpty() ? Translate("nothing") : sent)};
    if (const QString refused = names(State::Refused); !refused.isEmpty())
        sentences << Translate("Refused: %1.").arg(inDoubt.arg(refused));
    if (const QString underWay = names(State::UnderWay); !underWay.isEmpty())
        sentences << Translate("Without an answer: %1.").arg(inDoubt.arg(underWay));
    if (const QString notSent = names(State::NotSent); !notSent.isEmpty())
        sentences << Translate("Not sent: %1.").arg(notSent);
    sentences << Translate("Repeating the write completes it.");
    return sentences.join(QLatin1Char(' ')).toStdString();
}

}  // namespace rqm5
