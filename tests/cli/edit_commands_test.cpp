#include <gtest/gtest.h>

#include "cli/command_run.h"
#include "files/clone_file.h"
#include "image/channel_block.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"

namespace rqm5 {
namespace {

CloneImage ImageIn(const std::string& path)
{
    CloneImage image;
    EXPECT_FALSE(ParseCloneFile(Bytes(path), image)) << path;
    return image;
}

class EditCommands : public testing::Test
{
  protected:
    EditCommands()
    {
        for (const int row : {0, 3, 205, 1000, 1001, 1100}) {
            DecodeMemoryBlock(image, MemoryBlock("01455000000000080000001000600000"), row);
            image.MemData(row).frequency += row * 1'000'000;
            image.MemData(row).note = "row " + std::to_string(row);
        }
        PutBytes(file, FormatCloneFile(image));
    }

    /// The file after a command that has to succeed; the file is then as it was at first.
    CloneImage After(const Words& words)
    {
        const RunResult run = RunProgramFile(words);
        EXPECT_EQ(run.status, 0) << words[0] << ": " << run.err;
        const CloneImage after = ImageIn(file);
        PutBytes(file, FormatCloneFile(image));
        return after;
    }

    Folder folder;
    const std::string file = folder / "a.RQ5";
    CloneImage image = StartUpImage(0);
};

TEST_F(EditCommands, SetChangesTheRowsThatAreNamedAndNoOthers)
{
    struct Case
    {
        const char* rows;
        std::vector<int> changed;
    };
    const Case cases[] = {{"all", {0, 3, 205, 1000, 1001, 1100}},
                          {"bank:0", {0, 3}},
                          {"bank:1/4-9", {205}},
                          {"memory:3-205", {3, 205}},
                          {"program-scan/0B", {1001}},
                          {"search-pass,bank:0/0", {0, 1100}},
                          {"freq:148..351", {3, 205}},
                          {"note~ROW 100,mode=FM", {1000, 1001}},
                          {"freq=145.5", {0}},
                          {"bank:0-1,note~5", {205}}};
    for (const auto& [rows, changed] : cases) {
        CloneImage expected = image;
        for (const int row : changed)
            expected.MemData(row).mode = 1;
        EXPECT_EQ(FormatCloneFile(After({"set", file, rows, "mode=am"})), FormatCloneFile(expected)) << rows;
    }
    const CloneImage many = After({"set", file, "memory:7", "freq=118.1MHz", "tone=88.5", "shift=-",
                                   "offset=0.6", "note=tower", "skip=on", "enabled=off", "step=12.5"});
    EXPECT_EQ(CellText(many.MemData(7), RowKind::Memory, 0, kTone), "88.5Hz");
    EXPECT_EQ(
        many.MemText(7, kFrequency) + many.MemText(7, kStep) + many.MemText(7, kShift) + many.MemData(7).note,
        "118.10000012.5KHz-Shifttower");
    EXPECT_TRUE(many.MemData(7).IsSkipped() && !many.MemEnable(7));
    EXPECT_EQ(After({"set", file, "vfo:6", "freq=150"}).VFOText(6, kFrequency), "150.000000");
}

TEST_F(EditCommands, RefuseWhatTheEditorRefusesAndLeaveTheFile)
{
    const std::pair<Words, const char*> cases[] = {
        {{"set", file, "memory:3", "freq=1300"}, "0.1 to 1299.995"},
        {{"set", file, "memory:9", "mode=AM"}, "holds a channel"},
        {{"set", file, "bank:1/150", "mode=AM"}, "bank 1 has 150 channels"},
        {{"set", file, "vfo:6", "freq=200"}, "VFO band"},
        {{"set", file, "all", "note=a,b"}, "--safe-notes"},
        {{"set", file, "search-pass/1-2", "freq=145.5", "enabled=on"}, "Search Pass"},
        {{"copy", file, "all", "bank:9/48"}, "room for 2 of 6"},
        {{"sort", file, "program-scan/0B-3A"}, "pair"},
        {{"merge", "--take", "bank:4/200", file, file + "2"}, "bank 4 has 100"}};
    PutBytes(file + "2", FormatCloneFile(image));
    for (const auto& [words, part] : cases) {
        const RunResult run = RunProgramFile(words);
        EXPECT_TRUE(run.status == 1 && Has(run.err, part)) << part << ": " << run.err;
        EXPECT_EQ(Bytes(file), FormatCloneFile(image)) << part;
    }
}

TEST_F(EditCommands, EnableClearCopyMoveAndSortKeepEverythingElse)
{
    EXPECT_TRUE(After({"enable", file, "all"}).MemEnable(205));
    EXPECT_FALSE(After({"clear", file, "bank:1"}).MemData(205).HasChannel());
    CloneImage expected = image;
    for (const int row : {0, 3})
        expected.MemData(row == 0 ? 201 : 202) = image.MemData(row);
    EXPECT_EQ(After({"copy", file, "bank:0", "bank:1/1"}), expected);
    for (const int row : {0, 3})
        ClearMemoryRow(expected, row);
    EXPECT_EQ(After({"move", file, "bank:0", "bank:1/1"}), expected);
    EXPECT_EQ(After({"copy", file, "memory:0", "bank:1"}).MemData(200), image.MemData(0));
    EXPECT_EQ(After({"sort", file, "bank:0,bank:1", "--by=note"}).MemData(1), image.MemData(3));
    const RunResult dry = RunProgramFile({"clear", file, "bank:1", "--dry-run"});
    EXPECT_TRUE(dry.status == 0 && Has(dry.out, "memory row 205 (Bank 1, channel 5): 350.500000 FM -> empty"))
        << dry.out;
    EXPECT_EQ(Bytes(file), FormatCloneFile(image));
    EXPECT_EQ(RunProgramFile({"enable", file, "all", "--keep"}).out, "6 rows changed in " + file + "\n");
    EXPECT_EQ(Bytes(file + "~"), FormatCloneFile(image));
}

TEST_F(EditCommands, MergeTakesWhatIsNamed)
{
    CloneImage other = StartUpImage(1);
    other.SetBankSize(0, 100);
    DecodeMemoryBlock(other, MemoryBlock("01465000000000080000001000600000"), 210);
    const std::string path = folder / "other.RQ5";
    PutBytes(path, FormatCloneFile(other));
    const CloneImage all = After({"merge", "--take", "all,vfo,settings,banks", path, file});
    EXPECT_EQ(FormatCloneFile(all), FormatCloneFile(other));
    const CloneImage rows = After({"merge", "--take", "memory:200-299", path, file});
    EXPECT_TRUE(rows.MemData(210) == other.MemData(210) && !rows.MemData(205).HasChannel() &&
                rows.BankSize(0) == 200);
    EXPECT_TRUE(Has(RunProgramFile({"merge", "--take=bank:1", path, file}).err, "other rows in OTHER"));
}

TEST_F(EditCommands, FilesComeFromListsAndPipesAndAnswersAreMadeForPrograms)
{
    const std::string bad = folder / "bad.RQ5";
    const std::string list = folder / "list";
    PutBytes(bad, "no clone file");
    PutBytes(list, file + "\r\n" + bad + "\n\n" + file + "\n");
    const RunResult check = RunProgramFile({"check", "--from-file", list});
    EXPECT_EQ(check.status, 1);
    EXPECT_EQ(check.out,
              file + ": whole, RQ-M5 J, 6 channels, 0 on\n" + file + ": whole, RQ-M5 J, 6 channels, 0 on\n");
    EXPECT_TRUE(
        Has(RunProgramFile({"check", "--json", file, bad}).out, "\"whole\":false,\"error\":\"Data Error\""));
    EXPECT_TRUE(RunProgramFile({"-q", "check", file, file}).out.empty());

    const RunResult found = RunProgramFile({"find", "1145..1146.5 row", file, file});
    EXPECT_TRUE(found.status == 0 && Has(found.out, "a.RQ5  Program Scan  0A       1000  x    1145.500000"))
        << found.out;
    EXPECT_EQ(RunProgramFile({"find", "bank:1 145", file}).status, 1);
    EXPECT_TRUE(
        Has(RunProgramFile({"find", "mode=FM row 205", file, "--json"}).out,
            "\"row\":205,\"place\":\"bank:1/5\",\"bank\":1,\"frequency_hz\":350500000,\"mode\":\"FM\""));
    EXPECT_EQ(RunProgramFile({"export", file, bad, "--to", folder / "."}).status, 1);
    EXPECT_TRUE(Bytes(folder / "a.csv").starts_with("\""));

    QProcess pipe;
    StartProgram(pipe, {"enable", "-", "bank:0"});
    pipe.write(QByteArray::fromStdString(FormatCloneFile(image)));
    pipe.closeWriteChannel();
    const RunResult piped = FinishProgram(pipe);
    CloneImage expected = image;
    expected.MemData(0).enabled = expected.MemData(3).enabled = true;
    EXPECT_EQ(piped.out, FormatCloneFile(expected)) << piped.err;
    QProcess endless;
    endless.setStandardInputFile(QStringLiteral("/dev/zero"));
    StartProgram(endless, {"check", "/dev/stdin"});
    EXPECT_TRUE(Has(FinishProgram(endless).err, "more than 16 MiB"));
    EXPECT_TRUE(RunProgramFile({"print", file, "--pdf", "-"}).out.starts_with("%PDF"));
}

}  // namespace
}  // namespace rqm5
