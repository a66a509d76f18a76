#include <gtest/gtest.h>
#include <unistd.h>

#include "cli/command_run.h"
#include "files/clone_file.h"
#include "image/channel_block.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"

namespace rqm5 {
namespace {

std::string DemoFile()
{
    return FormatCloneFile(DemoImage(0));
}

void ExpectFailure(const Words& words, const char* begin, const std::string& part)
{
    const RunResult run = RunProgramFile(words);
    EXPECT_EQ(run.status, 1) << part;
    EXPECT_TRUE(run.err.starts_with(begin)) << run.err;
    EXPECT_TRUE(Has(run.err, part)) << run.err;
}

class FileCommands : public testing::Test
{
  protected:
    Folder folder;
    const std::string file = folder / "a b\n\".RQ5";
};

TEST_F(FileCommands, NewWritesTheImageOfARegionAndReplacesOnlyWhenForced)
{
    EXPECT_EQ(RunProgramFile({"new", "--region", "2", file}).status, 0);
    EXPECT_EQ(Bytes(file), FormatCloneFile(StartUpImage(2)));

    const std::string before = Bytes(file);
    ExpectFailure({"new", file, "--empty"}, "File Open Error: ", "--force");
    EXPECT_EQ(Bytes(file), before);
    EXPECT_EQ(RunProgramFile({"new", file, "--empty", "--force"}).status, 0);
    CloneImage emptied = StartUpImage(0);
    NewImage(emptied);
    EXPECT_EQ(Bytes(file), FormatCloneFile(emptied));
    const std::string link = folder / "leads nowhere";
    ASSERT_EQ(symlink("none", link.c_str()), 0);
    ExpectFailure({"new", link}, "File Open Error: ", "--force");
}

TEST_F(FileCommands, RefuseWhatIsNoCloneFileAndSayWhy)
{
    const std::string bad = folder / "bad.RQ5";
    PutBytes(file, DemoFile());
    PutBytes(bad, DemoFile().replace(34 * 3 + 5, 1, ""));
    for (const char* command : {"check", "show"}) {
        ExpectFailure({command, bad}, "Data Error: ", "4");
        ExpectFailure({command, folder / "none.RQ5"}, "File Open Error: ", "none.RQ5");
    }
    ExpectFailure({"export", bad, folder / "out.csv"}, "Data Error: ", "4");
    ExpectFailure({"diff", file, bad}, "Data Error: ", "4");
    ExpectFailure({"check", "--", "--none"}, "File Open Error: ", "--none");
    EXPECT_EQ(access((folder / "out.csv").c_str(), F_OK), -1);
    ExpectFailure({"export", file, folder / "./a b\n\".RQ5"}, "File Open Error: ", "the same file");
    ExpectFailure({"print", file, "--pdf", folder / "./a b\n\".RQ5"}, "File Open Error: ", "the same file");
    EXPECT_EQ(Bytes(file), DemoFile());
    ExpectFailure({"new", folder / "no/x.RQ5"}, "File Open Error: ", "x.RQ5");
    // Found out before anything is read from the port, which is not there.
    ExpectFailure({"read", "--port", "/dev/none", bad}, "Data Error: ", "4");
    ExpectFailure({"read", "--port", "/dev/none", folder / "no/x.RQ5"},
                  "File Open Error: ", "/no does not exist");
}

TEST_F(FileCommands, FailWhenTheOutputHasNoRoom)
{
    PutBytes(file, DemoFile());
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    StartProgram(process, {"show", file});
    const RunResult full = FinishProgram(process);
    EXPECT_EQ(full.status, 1);
    EXPECT_TRUE(Has(full.err, "File Open Error: the output could not be written")) << full.err;
}

TEST_F(FileCommands, ImportTakesRowsIntoAFileOrANewOneAndNamesNotesThatAreLost)
{
    const std::string csv = folder / "rows.csv";
    const std::string junk = folder / "junk.csv";
    PutBytes(csv, CsvRecord("MEMORY", 7, "145.5", "東京"));
    PutBytes(junk, DemoFile());
    EXPECT_EQ(RunProgramFile({"import", csv, file}).status, 0);
    EXPECT_TRUE(Has(RunProgramFile({"show", file, "--bank", "0"}).out, "145.500000  AM    5KHz  OFF     "));
    const std::string before = Bytes(file);
    ExpectFailure({"import", junk, file}, "Data Error: ", "no record");
    EXPECT_EQ(Bytes(file), before);

    PutBytes(csv, CsvRecord("PRIORITY", 3, "145.5", "home, sweet"));
    ExpectFailure({"import", csv, file}, "Data Error: ", "Pr3");
    EXPECT_TRUE(Has(Bytes(file), "home, sweet\r\n"));
}

TEST_F(FileCommands, ShowPrintsTheTableOfAGroupInColumns)
{
    CloneImage image = StartUpImage(1);
    for (const int row : {1200, 1201}) {
        DecodeMemoryBlock(image, MemoryBlock("01455000000000080000001000600000"), row);
        image.MemData(row).note = row == 1200 ? "東京" : "x\x1b[2J";
    }
    image.MemData(1200).enabled = true;
    PutBytes(file, FormatCloneFile(image));
    const std::string out = RunProgramFile({"show", "--bank", "priority", file}).out;
    EXPECT_TRUE(
        Has(out,
            "       Frequency   Mode  Step  Option  Skip  Carrier  Tone    Shift   ShiftFreq.  Note\n"
            "   1   145.500000  FM    9KHz  OFF     *     300Hz    67.0Hz  +Shift  0.600000    東京\n"
            "-  2   145.500000  FM    9KHz  OFF     *     300Hz    67.0Hz  +Shift  0.600000    x\\x1B[2J\n"))
        << out;
    EXPECT_TRUE(Has(RunProgramFile({"show", file}).out, "   Pr0  145.500000"));
}

TEST_F(FileCommands, CheckSaysWhatAFileHoldsAndWarns)
{
    CloneImage image = StartUpImage(3);
    DecodeMemoryBlock(image, MemoryBlock("01455000000000080000001000600000"), 205);
    image.MemData(205).note = "=1+1";
    image.MemData(205).enabled = true;
    image.SetBankLink(4, true);
    std::string bytes = FormatCloneFile(image);
    PutBytes(file, bytes);
    const RunResult run = RunProgramFile({"check", file});
    EXPECT_EQ(run.status, 0);
    for (const char* part : {" is whole.\nModel: RQ-M5 K (region 3)\n", "Linked banks: 4\n",
                             "\nBank 1        150   1         1   1        1\n"})
        EXPECT_TRUE(Has(run.out, part)) << run.out;
    EXPECT_TRUE(Has(run.err, "formulas:\n  memory row 205") && !Has(run.err, "LF")) << run.err;
    EXPECT_TRUE(Has(RunProgramFile({"export", file, folder / "out.csv"}).err, "formulas:\n  memory row 205"));

    std::erase(bytes, '\r');
    bytes.replace(bytes.find('\n') + 3, 1, "x");  // in the first block
    PutBytes(file, bytes + "more");
    const RunResult odd = RunProgramFile({"check", file});
    EXPECT_EQ(odd.status, 0);
    EXPECT_TRUE(Has(odd.err, "\n  line 2 (settings block")) << odd.err;
    EXPECT_TRUE(Has(odd.err, "LF in place of CR LF") && Has(odd.err, "behind the last line")) << odd.err;
}

TEST_F(FileCommands, DiffNamesWhatDiffersAndIsSilentOtherwise)
{
    EXPECT_EQ(RunProgramFile({"new", folder / "a.RQ5"}).status, 0);
    EXPECT_EQ(RunProgramFile({"new", folder / "b.RQ5", "--region", "1"}).status, 0);
    const RunResult same = RunProgramFile({"diff", folder / "a.RQ5", folder / "a.RQ5"});
    EXPECT_TRUE(same.status == 0 && same.out.empty()) << same.out;
    const RunResult run = RunProgramFile({"diff", folder / "a.RQ5", folder / "b.RQ5"});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(Has(run.out, "VFO row 6: Step 20KHz -> 12.5KHz\n")) << run.out;
}

TEST_F(FileCommands, PrintMakesTheChosenPartsTextOrAPdf)
{
    const std::string pdf = folder / "out.pdf";
    PutBytes(file, DemoFile());
    const RunResult bank = RunProgramFile({"print", file, "--vfo", "--memory", "--bank", "2", "--empty"});
    EXPECT_EQ(bank.status, 0) << bank.err;
    EXPECT_TRUE(Has(bank.out, "\nMemory: Bank 2 (14 of 100 rows used")) << bank.out;
    EXPECT_FALSE(Has(bank.out, "Settings\n"));
    EXPECT_GT(std::count(bank.out.begin(), bank.out.end(), '\n'), 14 + 100);

    const RunResult done = RunProgramFile({"print", file, "--pdf", pdf, "--paper", "letter", "--landscape"});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out + done.err, "");
    EXPECT_TRUE(Has(Bytes(pdf), "/MediaBox [0 0 792.0"));
    ExpectFailure({"print", file, "--pdf", folder / "none/out.pdf"}, "", "none");
}

}  // namespace
}  // namespace rqm5
