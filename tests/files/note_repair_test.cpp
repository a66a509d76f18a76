#include "files/note_repair.h"

#include <gtest/gtest.h>

#include "files/round_trip.h"
#include "files/safe_notes.h"
#include "image/channel_block.h"
#include "language/english.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

CloneImage ImageWithNotes(const std::vector<std::pair<int, const char*>>& notes)
{
    CloneImage image = StartUpImage(1);
    for (const auto& [row, note] : notes)
        image.MemData(row).note = note;
    return image;
}

std::string RefusalOf(std::string_view text)
{
    const auto result = RepairNotes(text);
    const auto* error = std::get_if<ParseError>(&result);
    return error != nullptr ? error->reason.English() : "none";
}

TEST(SafeNotes, ReplaceWhatAFileCannotBringBackAndNothingElse)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plain", "plain"},
        {"", ""},
        {"a,b", "a;b"},
        {"\"q\"", "'q'"},
        {"5\" rod", "5\" rod"},
        {"\"a\" b", "\"a\" b"},
        {"\"a,\"", "'a;'"},
        {"x \"a,b\"", "x \"a;b\""},
        {"two\r\nlines", "two\\r\\nlines"},
        {"\xFF", "\\xFF"},
    };
    for (const auto& [note, safe] : cases) {
        EXPECT_EQ(SafeNote(note), safe);
        EXPECT_EQ(NoteSurvives(note), std::string_view(note) == safe) << note;
    }
}

TEST(NoteRepair, MendsTheNotesAndLeavesAllOtherLines)
{
    CloneImage image = ImageWithNotes({{0, "A,B"}, {7, "\"x\",y"}, {1239, "東,京"}});
    image.VFOData(2).note = "\"all, of it\"";  // comes back as one note, and would spoil the next save
    const std::string spoilt = FormatCloneFile(image);
    CloneImage loaded;
    const auto refusal = ParseCloneFile(spoilt, loaded);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->line, 1282);
    const std::string reason = refusal->reason.English();
    EXPECT_NE(reason.find("note of memory row 0"), std::string::npos) << reason;
    EXPECT_NE(reason.find("File > Repair, or \"rq-m5 repair\""), std::string::npos);

    const auto result = RepairNotes(spoilt);
    ASSERT_TRUE(std::holds_alternative<NoteRepair>(result));
    const auto& repair = std::get<NoteRepair>(result);
    std::vector<std::string> words;
    for (const RepairedNote& note : repair.notes)
        words.push_back(RepairText(note).English());
    const std::vector<std::string> expected = {"line 1270, note of VFO row 2: all, of it -> all; of it",
                                               "line 1282, note of memory row 0: A,B -> A;B",
                                               "line 1289, note of memory row 7: \"x\",y -> 'x';y",
                                               "line 2521, note of memory row 1239: 東,京 -> 東;京"};
    EXPECT_EQ(words, expected);
    image.VFOData(2).note = "all; of it";
    EXPECT_EQ(repair.text, FormatCloneFile(WithSafeNotes(image)));
}

TEST(NoteRepair, LeavesAloneWhatNotesAreNotToBlameFor)
{
    const std::string good = FormatCloneFile(ImageWithNotes({{3, "fine"}}));
    const auto whole = RepairNotes(good);
    ASSERT_TRUE(std::holds_alternative<NoteRepair>(whole));
    EXPECT_TRUE(std::get<NoteRepair>(whole).notes.empty());

    const std::string spoilt = FormatCloneFile(ImageWithNotes({{3, "a,b"}}));
    EXPECT_NE(RefusalOf("no clone file").find("line 1"), std::string::npos);
    EXPECT_NE(RefusalOf(spoilt.substr(0, spoilt.size() - 400)).find("cut short"), std::string::npos);
    EXPECT_NE(RefusalOf(spoilt + "x").find("none"), std::string::npos) << "text behind the end is no harm";
    std::string damaged = spoilt;
    damaged.replace(damaged.rfind("Tervan"), 6, "Damage");
    EXPECT_NE(RefusalOf(damaged), "none");
}

TEST(RoundTrip, NamesWhatReadsBackOtherwiseAndNothingElse)
{
    CloneImage image = ImageWithNotes({{4, "a,b"}});
    for (const int row : {3, 4, 5, 1205})
        DecodeMemoryBlock(image, MemoryBlock("01455000000000080000001000600000"), row);
    image.MemData(3).step = 19;
    image.MemData(4).shiftFrequency = 50000;
    image.MemData(5).isSecretEdited = image.MemData(5).isCarrierImported = true;  // wording only
    image.MemData(6).tone = 5;                                                    // an empty row
    image.VFOData(0).step = 19;                                                   // VFO rows bring it back
    const std::vector<std::string> expected = {
        "memory row 3 (Bank 0, channel 3): Step 1KHz -> 9KHz",
        "memory row 4 (Bank 0, channel 4): Shift frequency 0.050000 -> 0.500000"};
    EXPECT_EQ(English(ChangedValues(image, ReadBack(image))), expected);

    image.MemData(4).note.clear();
    const std::string text = FormatCloneFile(image);
    CloneImage loaded;
    ASSERT_FALSE(ParseCloneFile(text, loaded));
    EXPECT_EQ(English(ValuesReadOtherwise(text, loaded)), expected) << "the file says them";
    EXPECT_TRUE(ValuesReadOtherwise(FormatCloneFile(loaded), loaded).empty());
}

}  // namespace
}  // namespace rqm5
