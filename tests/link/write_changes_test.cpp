#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>

#include "image/channel_block.h"
#include "link/change_list.h"
#include "link/change_writer.h"
#include "link/receiver_checks.h"
#include "link/simulated_line.h"

namespace rqm5 {
namespace {

void LearnBlocks(const CloneImage& image, RadioLink& link, TransferObserver& observer)
{
    for (auto wanted = BlocksToLearn(link.Knowledge()); !wanted.empty();
         wanted = BlocksToLearn(link.Knowledge())) {
        BlockMap read;
        ASSERT_EQ(ReadBlocks(wanted, image, link, observer, read), TransferResult::Done);
    }
}

/// A receiver, an image, and what a write of the changes does, without the questions.
struct ChangesLine : SimulatedLine
{
    using SimulatedLine::SimulatedLine;

    ChangePlan Plan()
    {
        LearnBlocks(image, link, observer);
        const ReceiverKnowledge& knowledge = link.Knowledge();
        return {image, KnownContents(knowledge), KnownFrom::Receiver, knowledge.ArePresetsDue()};
    }

    void Check(ChangePlan& plan)
    {
        BlockMap read;
        EXPECT_EQ(ReadBlocks(plan.BlocksToCheck(), image, link, observer, read), TransferResult::Done);
        plan.Check(read);
    }

    TransferResult WriteChanges()
    {
        ChangePlan plan = Plan();
        Check(plan);
        EXPECT_TRUE(plan.Conflicts().empty());
        return ChangeWriter(image, plan, link, observer).Write();
    }

    /// Somebody edits at the receiver itself.
    void Turn(int address, int byte, int value)
    {
        ReceiverMemory memory = receiver.Memory();
        memory.At(address).SetByte(byte, value);
        receiver.SetMemory(memory);
    }
};

/// Edits of every kind, many in one place or few all over.
void EditAtRandom(CloneImage& image, std::mt19937& random)
{
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    for (int edits = below(20); edits >= 0; --edits) {
        const int row = below(2) == 0 ? below(kMemoryRows) : 1080 + below(140);
        switch (below(8)) {
            case 0:
                ClearMemoryRow(image, row);
                break;
            case 1:
                image.MemData(row).frequency = 1 + below(1'000'000'000);
                image.MemData(row).mode = static_cast<std::uint8_t>(below(3));
                break;
            case 2:
            case 3:
                image.MemData(row).enabled = !image.MemData(row).enabled;
                break;
            case 4:
                image.VFOData(below(kVfoRows)).tone = static_cast<std::uint8_t>(below(39));
                break;
            case 5:
                image.SetBankSize(below(kBanks), below(20));
                image.SetBankLink(below(kLinkFlags), below(2) == 0);
                break;
            case 6:
                kSettingFields.at(static_cast<std::size_t>(below(kSettings))).Set(image.Settings(), below(2));
                break;
            default:
                image.Settings().model = below(kRegions);
        }
    }
}

/// What no image makes: flags of rows that are empty or not there, a list that is not in step, values out of
/// their range.
void SpoilAtRandom(ReceiverMemory& memory, std::mt19937& random)
{
    for (int blocks = 0; blocks < 6; ++blocks) {
        const int address = ReadableBlocks().at(random() % ReadableBlocks().size());
        memory.At(address).SetByte(static_cast<int>(random() % kBlockBytes),
                                   static_cast<int>(random() % 256));
    }
    memory.At(0x0250).SetByte(11, static_cast<int>(random() % 256));  // the last rows, and none
    memory.At(0x0280).SetByte(0, static_cast<int>(random() % 100));
}

ReceiverMemory WithoutPresets(ReceiverMemory memory)
{
    const MemoryArea& presets = AreaOf(Area::Presets);
    for (int index = 0; index < presets.blocks; ++index)
        memory.At(presets.AddressOf(index)) = {};
    return memory;
}

TEST(WriteChanges, LeaveWhatAWholeWriteLeaves)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        std::mt19937 random(seed);
        ChangesLine line(DemoImage(static_cast<int>(seed % 4)));
        SimulatedLine whole{CloneImage()};
        ReceiverMemory memory = line.receiver.Memory();
        SpoilAtRandom(memory, random);
        line.receiver.SetMemory(memory);
        line.image = ImageFromMemory(memory, {});
        for (int round = 0; round < 3; ++round) {
            EditAtRandom(line.image, random);
            whole.receiver.SetMemory(line.receiver.Memory());
            whole.image = line.image;
            const int modelBefore = line.receiver.Memory().At(0x0040).Byte(1);
            ASSERT_EQ(whole.Write(kEverything), TransferResult::Done);
            line.receiver.ClearCommandLog();
            ASSERT_EQ(line.WriteChanges(), TransferResult::Done);
            ASSERT_EQ(WithoutPresets(line.receiver.Memory()), WithoutPresets(whole.receiver.Memory()))
                << seed << ' ' << round;
            const bool isSameRegion = modelBefore == line.image.Settings().model;
            EXPECT_EQ(line.observer.written.contains(0x0560), !isSameRegion) << seed << ' ' << round;
            EXPECT_TRUE(isSameRegion || line.receiver.Memory() == whole.receiver.Memory());
            EXPECT_TRUE(round == 0 || line.receiver.CommandLog().size() < 500) << "it is known";
            line.observer.written.clear();
        }
    }
}

TEST(WriteChanges, AnEditedChannelTakesThreeExchanges)
{
    ChangesLine line(DemoImage(0));
    line.image = DemoImage(0);
    ASSERT_TRUE(line.Plan().Wanted().empty());
    line.receiver.ClearCommandLog();
    line.image.MemData(7).mode = 1 - line.image.MemData(7).mode % 2;
    ChangePlan plan = line.Plan();
    line.Check(plan);
    ASSERT_EQ(ChangeWriter(line.image, plan, line.link, line.observer).Write(), TransferResult::Done);
    std::vector<BlockDifference> differences;
    ReadBack(ExpectedAfterChanges(line.image, plan), line.link, line.observer, differences);
    EXPECT_TRUE(differences.empty());
    const std::string written = EncodeMemoryRow(line.image, 7).String();
    EXPECT_EQ(line.receiver.CommandLog(),
              (std::vector<std::string>{"QT~F1070R", "QT~F1070W" + written, "QT~F1070R"}));
    EXPECT_EQ(line.Plan().Wanted(), BlockMap()) << "what was written is known";
}

TEST(WriteChanges, WhatSomebodyChangedAtTheReceiverIsMergedOrAConflict)
{
    const int flagByte = 1100 / 8 % 16;  // rows 1096 to 1103, in the ninth block of flags
    const struct
    {
        const char* what;
        int address, byte, value;  ///< changed there
        std::function<void(CloneImage&)> edit;
        const char* conflict;     ///< its label and fields
        int ifReceivers, ifMine;  ///< what the byte is afterwards
    } cases[] = {
        {"the same row", 0x1000, 5, 2, [](CloneImage& image) { image.MemData(0).mode = 1; },
         "Row 0 (Bank 0, channel 0) Mode: FM, WFM, AM;", 2, 1},
        {"another row", 0x1010, 5, 2, [](CloneImage& image) { image.MemData(0).mode = 1; }, "", 2, 2},
        {"the same change", 0x1000, 5, 1, [](CloneImage& image) { image.MemData(0).mode = 1; }, "", 1, 1},
        {"a setting of the same block", 0x0040, 14, 5,
         [](CloneImage& image) { image.Settings().squelch = 9; },
         "Settings 1 Volume: 22, 5, 22; Squelch: 2, 2, 9;", 5, 22},
        {"another bank", 0x00C0, 2, 7, [](CloneImage& image) { image.SetBankSize(0, 10); },
         "Bank sizes Bank 0 size: 50, 50, 10; Bank 1 size: 50, 7, 50;", 7, 50},
        {"flags of the same block", 0x0240, flagByte, 0xFF,
         [](CloneImage& image) { image.MemData(1100).enabled = false; }, "", 0xF7, 0xF7},
        {"a link", 0x0260, 0, 0xFF, [](CloneImage& image) { image.SetBankLink(9, true); }, "", 0xFF, 0xFF},
        {"its count", 0x0050, 2, 77, [](CloneImage& image) { image.Settings().lamp = 2; }, "", 77, 77},
    };
    for (const auto& test : cases) {
        CloneImage held = DemoImage(0);
        held.MemData(0).mode = 0;
        for (int row = 1096; row < 1104; ++row)
            held.MemData(row).enabled = row == 1100;
        ChangesLine line(held);
        line.image = held;
        line.Plan();
        line.Turn(test.address, test.byte, test.value);
        const ReceiverMemory before = line.receiver.Memory();
        test.edit(line.image);
        ChangePlan plan = line.Plan();
        line.Check(plan);
        std::string conflict;
        for (const Conflict& found : plan.Conflicts()) {
            const ConflictRow row = DescribeConflict(line.image, plan, found);
            conflict += row.label.English();
            for (const ConflictField& field : row.fields)
                conflict +=
                    Message(" %1: %2, %3, %4;", {field.name, field.known, field.receiver, field.image})
                        .English();
        }
        EXPECT_EQ(conflict, test.conflict) << test.what;
        for (const bool takesReceivers : {true, false}) {
            plan.Decide(std::vector<bool>(plan.Conflicts().size(), takesReceivers));
            EXPECT_EQ(ChangeWriter(line.image, plan, line.link, line.observer).Write(), TransferResult::Done);
            const ReceiverMemory now = line.receiver.Memory();
            EXPECT_EQ(now.At(test.address).Byte(test.byte), takesReceivers ? test.ifReceivers : test.ifMine)
                << test.what;
            EXPECT_TRUE(conflict.empty() || (now == before) == takesReceivers) << test.what;
            EXPECT_TRUE(conflict.empty() || now == MemoryFromImage(plan.Result())) << test.what;
        }
        if (test.address == 0x0240) {
            EXPECT_EQ(line.receiver.Memory(), MemoryFromImage(plan.Result())) << "list and count, too";
        }
    }
}

TEST(WriteChanges, ABrokenWriteLeavesTheBlockAndThePresetsUnknown)
{
    ChangesLine line(DemoImage(0));
    line.image = DemoImage(0);
    line.Plan();
    line.image.Settings().model = 2;
    line.image.MemData(3).mode = 2;
    ChangePlan plan = line.Plan();
    line.SpoilAfter(line.observer.done + 5, "ng:10", std::chrono::milliseconds(20));
    EXPECT_EQ(ChangeWriter(line.image, plan, line.link, line.observer).Write(), TransferResult::Failed);
    EXPECT_EQ(
        line.observer.problems.at(0).aftermath,
        "Sent: settings block 1, region presets 1 to 4. Refused: region preset 5 (may hold its old or its "
        "new contents). Not sent: region presets 6 to 74, row 3. Repeating the write completes it.");
    EXPECT_EQ(line.link.Knowledge().Find(0x05A0), nullptr);
    EXPECT_TRUE(line.Plan().Wanted().contains(0x0560)) << "all of them again";
    EXPECT_EQ(line.WriteChanges(), TransferResult::Done);
    EXPECT_EQ(line.receiver.Memory(), MemoryFromImage(line.image));
    EXPECT_TRUE(line.Plan().Wanted().empty());
}

TEST(ReceiverKnowledge, OfAnEarlierRunCountsWhenTheReceiverIsTheSame)
{
    const struct
    {
        const char* what;
        int address;  ///< changed between the runs; 0 for none
        std::size_t reads;
    } cases[] = {{"the same", 0, 20},
                 {"a channel that was edited there", 0x1000, 20},
                 {"another one", 0x0260, 20 + ReadableBlocks().size() - 20}};
    for (const auto& test : cases) {
        QTemporaryDir folder;
        ChangesLine line(DemoImage(0));
        line.image = DemoImage(0);
        line.link.Knowledge().KeepIn(folder.path());
        line.Plan();
        EXPECT_TRUE(line.link.Knowledge().LastHeld().has_value());
        line.link.Knowledge().Save();
        if (test.address > 0)
            line.Turn(test.address, 0, 0x07);

        RadioLink next(line.port);
        next.Knowledge().KeepIn(folder.path());
        EXPECT_EQ(next.Knowledge().Find(0x1000), nullptr);
        EXPECT_EQ(next.Knowledge().LastHeld()->image, line.link.Knowledge().LastHeld()->image);
        line.receiver.ClearCommandLog();
        LearnBlocks(line.image, next, line.observer);
        EXPECT_EQ(line.receiver.CommandLog().size(), test.reads) << test.what;
        EXPECT_NE(next.Knowledge().Find(0x1000), nullptr);

        // A program that is killed in a write leaves nothing; one that writes and ends, its knowledge.
        ReceiverWriter(line.image, kBanksOnly, next, line.observer).Write();
        line.link.Knowledge().CatchUp();
        EXPECT_FALSE(line.link.Knowledge().HasEarlier() || line.link.Knowledge().Find(0x1000) != nullptr);
        next.Knowledge().Save();
        line.link.Knowledge().CatchUp();
        EXPECT_TRUE(line.link.Knowledge().HasEarlier());
        line.port.SetDevice(QStringLiteral("/dev/other"));
        EXPECT_FALSE(line.link.Knowledge().HasEarlier());
    }
}

TEST(ReceiverKnowledge, DoesNotTakeWhatMayBeAnotherBlocks)
{
    for (const bool isLate : {false, true}) {
        ChangesLine line(DemoImage(0), {.lateDelay = std::chrono::milliseconds(60)});
        line.link.SetTimeOut(std::chrono::milliseconds(40));
        line.receiver.SetFaults({ParseFault(isLate ? "stall:1:after=9" : "drop:1:after=9").value()});
        line.receiver.SetStallTime(std::chrono::milliseconds(60));
        ASSERT_EQ(line.reader.ReadMemory(kSelectPriority), TransferResult::Done);
        const ReceiverMemory memory = line.receiver.Memory();
        for (const int address : ReadableBlocks())
            if (const KnownBlock* known = line.link.Knowledge().Find(address)) {
                EXPECT_EQ(known->contents, memory.At(address)) << HexAddress(address);
            }
        EXPECT_NE(line.link.Knowledge().Find(0x5B00), nullptr);
    }
}

}  // namespace
}  // namespace rqm5
