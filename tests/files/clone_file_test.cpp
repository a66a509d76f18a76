#include "files/clone_file.h"

#include <gtest/gtest.h>

#include <tuple>

#include "files/clone_lines.h"
#include "image/channel_block.h"
#include "language/english.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"

namespace rqm5 {
namespace {

/// The lines of a clone file, without their ends.
std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    CloneLineReader reader(text);
    while (const auto line = reader.NextLine())
        lines.emplace_back(*line);
    return lines;
}

std::string Joined(const std::vector<std::string>& lines, const std::string& lineEnd = "\r\n")
{
    std::string text;
    for (const std::string& line : lines)
        text += line + lineEnd;
    return text;
}

/// The lines of an image's file, one of them replaced.
std::string FileWith(const CloneImage& image, std::size_t line, const std::string& content)
{
    std::vector<std::string> lines = LinesOf(FormatCloneFile(image));
    lines[line] = content;
    return Joined(lines);
}

TEST(CloneFile, SavingWhatWasLoadedGivesTheSameBytes)
{
    for (int region = 0; region < kRegions; ++region) {
        CloneImage image = DemoImage(region);
        image.MemData(0).note = "  led by blanks; it's 50 % \\ #\t\xE6\x9D\xB1";
        const std::string text = FormatCloneFile(image);
        CloneImage loaded;
        ASSERT_FALSE(ParseCloneFile(text, loaded)) << region;
        EXPECT_TRUE(image == loaded) << region;
        EXPECT_EQ(FormatCloneFile(loaded), text) << region;
    }
}

TEST(CloneFile, EveryLineHasItsPlace)
{
    CloneImage image = StartUpImage(0);
    image.MemData(0).enabled = true;
    image.SetBankLink(55, true);
    image.VFOData(13).note = "last band";
    DecodeMemoryBlock(image, MemoryBlock("01450000000000000000001005000000"), 1239);
    image.MemData(1239).note = "last row";
    image.MemData(1239).enabled = true;
    const std::string file = FormatCloneFile(image);
    const std::vector<std::string> lines = LinesOf(file);
    ASSERT_EQ(lines.size(), 2530U);
    EXPECT_EQ(file, Joined(lines)) << "every line ends with CR LF";
    const std::pair<std::size_t, const char*> places[] = {
        // clang-format off
        {0, "Tervan  RQ-M5  Clone  File Start"}, {1, "A500FF8100060000FFFFFFFF00011E03"},
        {2, "0000600101000200482300FFFFFFFFFF"}, {3, "0000100000011300081C080000250000"},
        {1256, "01450000000000000000001005000000"}, {1257, "80000000000000000000000000000000"},
        {1266, "00000000000000000000010000000000"}, {1280, "last band"}, {2520, "last row"},
        {2521, "C8009600960064006400320050004600"}, {2527, "000000000000640064000A0017000000"},
        {2528, "00000000000001FFFFFFFFFFFFFFFFFF"}, {2529, "Tervan  RQ-M5  Clone  File   End"},
        // clang-format on
    };
    for (const auto& [line, text] : places)
        EXPECT_EQ(lines[line], text) << line;
}

TEST(CloneFile, RefusedFileLeavesTheImageUntouched)
{
    // The line replaced, counted from 0, its content, the line blamed, counted from 1, and why.
    const std::tuple<std::size_t, const char*, int, const char*> refusals[] = {
        // clang-format off
        {0, "Tervan  RQ-M5 Clone  File Start", 1, "no clone file"},
        {0, "Tervan  RQ-M5  Clone  File Start ", 1, "no clone file"},
        {17, "0145000000000000000000100500000", 18, "(memory row 0) has 31 characters"},
        {1266, "000000000000000000000000000000000", 1267, "has 33 characters"},
        {2, "", 3, "(settings block 2) has 0 characters"},
        {3, "0000100000011300081C08000025000\xC3\xBC\xC3\xBC", 4, "33"},  // two bytes are one character
        {1281, "A,B", 1282, "(note of memory row 0) holds a comma"}, {2520, "A,B", 2521, "memory row 1239"},
        {2529, "Tervan  RQ-M5  Clone  File  End", 2530, "(last line)"},
        {2529, "Tervan  RQ-M5  Clone  File   End ", 2530, "(last line)"},
        // clang-format on
    };
    const CloneImage source = DemoImage(1), before = DemoImage(2);
    for (const auto& [line, content, blamed, reason] : refusals) {
        CloneImage image = before;
        const auto error = ParseCloneFile(FileWith(source, line, content), image);
        ASSERT_TRUE(error) << content;
        EXPECT_EQ(error->line, blamed) << content;
        EXPECT_NE(error->reason.English().find(reason), std::string::npos) << error->reason.English();
        EXPECT_TRUE(image == before) << content;
    }
}

TEST(CloneFile, FileCutAnywhereIsRefused)
{
    const CloneImage source = DemoImage(3);
    const std::string text = FormatCloneFile(source);
    const CloneImage before = DemoImage(0);
    CloneImage image = before;
    for (std::size_t size = 0; size + 2 < text.size(); size += size < 100 ? 1 : 97)
        ASSERT_TRUE(ParseCloneFile(text.substr(0, size), image)) << size;
    EXPECT_TRUE(image == before);
    EXPECT_FALSE(ParseCloneFile(text.substr(0, text.size() - 2), image)) << "the last line may end the file";
}

TEST(CloneFile, ReadsOtherLineEndsAByteOrderMarkAndWhatFollowsTheEnd)
{
    const CloneImage source = DemoImage(1);
    const std::string text = FormatCloneFile(source);
    const std::string variants[] = {Joined(LinesOf(text), "\n"), Joined(LinesOf(text), "\r"),
                                    "\xEF\xBB\xBF" + text, text + "more,\"and more\"\r\n"};
    for (const std::string& variant : variants) {
        CloneImage image;
        ASSERT_FALSE(ParseCloneFile(variant, image));
        EXPECT_EQ(FormatCloneFile(image), text);
    }
}

TEST(CloneFile, NotesAreReadAsFields)
{
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"\"in quotes\"", "in quotes"}, {"\"a,b\"", "a,b"}, {"\"\"", ""}, {"\"no end", "\"no end"},
        {" \"not at the start\"", " \"not at the start\""}, {"\"a\" b", "\"a\" b"}, {"\"", "\""},
        {"  blanks  ", "  blanks  "}, {"\xFF\x41", "\xEF\xBF\xBD\x41"},
        {"\x83\x65\x83\x58\x83\x67\x5C\xB1\x87\x40",
         "\xE3\x83\x86\xE3\x82\xB9\xE3\x83\x88\\\xEF\xBD\xB1\xE2\x91\xA0"},
        // clang-format on
    };
    for (const auto& [line, note] : cases) {
        CloneImage image;
        ASSERT_FALSE(ParseCloneFile(FileWith(StartUpImage(0), 1281, line), image)) << line;
        EXPECT_EQ(image.MemText(0, kNote), note);
        EXPECT_EQ(image.MemText(1, kNote), "");
    }
}

TEST(CloneFile, BlocksKeepTheirPlacesBehindCharactersThatNoBlockHolds)
{
    const std::string block =
        "0145\xE6\x9D\xB1"
        "000000100000000000000000000";
    CloneImage image;
    ASSERT_FALSE(ParseCloneFile(FileWith(StartUpImage(0), 17, block), image));
    EXPECT_EQ(image.MemText(0, kFrequency), "145.000000");
    EXPECT_EQ(image.MemText(0, kMode), "AM");
}

TEST(CloneFile, ASettingsBlockWithoutMarkerGivesTheSelectedModelsDefaults)
{
    CloneImage image = StartUpImage(2);
    const std::string noMarker = "0000FF8100060000FFFFFFFF00011E03";
    ASSERT_FALSE(ParseCloneFile(FileWith(StartUpImage(0), 1, noMarker), image));
    EXPECT_EQ(LinesOf(FormatCloneFile(image))[1], "A502FF8100060000FFFFFFFF00011E03");
}

TEST(CloneFile, NamesTheNotesThatDoNotSurvive)
{
    CloneImage image = StartUpImage(0);
    image.VFOData(3).note = "a,b";
    image.MemData(12).note = "\"quoted\"";
    image.MemData(1105).note = "two\r\nlines";
    image.MemData(1000).note = "\"a,b\"";
    const std::vector<std::string> expected = {"VFO row 3", "memory row 12 (Bank 0, channel 12)",
                                               "memory row 1000 (Program Scan 0A)",
                                               "memory row 1105 (Search Pass S5)"};
    EXPECT_EQ(English(NotesThatDoNotSurvive(image)), expected);

    image.VFOData(3).note.clear();
    CloneImage loaded;
    ASSERT_FALSE(ParseCloneFile(FormatCloneFile(image), loaded)) << "a line break must not break the file";
    EXPECT_EQ(loaded.MemText(1105, kNote), "two  lines");
    EXPECT_EQ(loaded.MemText(1000, kNote), "a,b");
}

}  // namespace
}  // namespace rqm5
