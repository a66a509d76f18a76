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
    PutBytes(csv, CsvLineOf("MEMORY", 7, "145.5", "東京"));
    PutBytes(junk, DemoFile());
    EXPECT_EQ(RunProgramFile({"import", csv, file}).status, 0);
    EXPECT_TRUE(Has(RunProgramFile({"show", file, "--bank", "0"}).out, "145.500000  AM    5KHz  OFF     "));
    const std::string before = Bytes(file);
    ExpectFailure({"import", junk, file}, "Data Error: ", "no record");
    EXPECT_EQ(Bytes(file), before);

    EXPECT_EQ(RunProgramFile({"import", csv, file}).out, "1 row taken from " + csv + "\n");
    EXPECT_TRUE(Has(RunProgramFile({"import", csv, file}).err, "carrier code of 1 row moved one up"));
    PutBytes(csv, CsvLineOf("PRIORITY", 3, "145.5", "home\"\" sweet"));
    EXPECT_EQ(RunProgramFile({"import", csv, file}).status, 0) << "quotes inside a note come back";
}

TEST_F(FileCommands, ImportTakesListsOfOtherPrograms)
{
    const std::string list = folder / "list.csv";
    PutBytes(list, "Frequenz;Name\n145,500;Ulm\n2400;Funk\n433,5;Ost\n");
    ExpectFailure({"import", list, file}, "Data Error: ", "--from-row");
    ExpectFailure({"import", list, file, "--map", "Ort=note", "--from-row", "0"},
                  "Data Error: ", "no column \"Ort\"");
    const RunResult dry = RunProgramFile({"import", list, file, "--from-row", "0:3", "--dry-run"});
    EXPECT_TRUE(dry.status == 0 && Has(dry.out, "2 rows would be taken") && Has(dry.out, "145.500000"))
        << dry.out;
    EXPECT_TRUE(Bytes(file).empty()) << "nothing is written";
    PutBytes(file, DemoFile());
    const RunResult run = RunProgramFile({"import", list, file, "--from-row=3", "--keep", "--map=Name=none"});
    EXPECT_TRUE(run.status == 0 && Has(run.out, "semicolon") && Has(run.out, "2 rows taken")) << run.out;
    EXPECT_TRUE(Has(run.err, "Line 3: The receiver takes 0.1 to 1299.995 MHz.")) << run.err;
    EXPECT_EQ(Bytes(file + "~"), DemoFile());
    CloneImage image;
    EXPECT_FALSE(ParseCloneFile(Bytes(file), image));
    EXPECT_EQ(image.MemData(3).frequency, 145'500'000);
    EXPECT_EQ(image.MemData(4).frequency, 433'500'000);

    // A file of this program keeps its rules, but not in silence.
    PutBytes(list, CsvLineOf("MEMORY", 7, "2400,5", ""));
    const RunResult own = RunProgramFile({"import", list, file});
    EXPECT_TRUE(Has(own.err, "Line 1: memory row 7")) << own.err;
    EXPECT_TRUE(Has(RunProgramFile({"check", file}).err, "0.1 to 1299.995 MHz):\n  memory row 7"));
    EXPECT_TRUE(Has(RunProgramFile({"write", "--port", "/dev/no", file}).err,
                    "are written as they are:\n  memory row 7"));
}

TEST_F(FileCommands, ImportSpoilsNoFile)
{
    const std::string csv = folder / "rows.csv";
    const std::string full = folder / "none/new.RQ5";
    PutBytes(csv, CsvLineOf("PRIORITY", 3, "145.5", "home, sweet"));
    for (const bool isThere : {false, true}) {
        const std::string before = isThere ? DemoFile() : "";
        if (isThere)
            PutBytes(file, before);
        const RunResult refused = RunProgramFile({"import", csv, file});
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(Has(refused.err, "--safe-notes") &&
                    Has(refused.err, "\n  memory row 1203 (Priority Pr3)\n"))
            << refused.err;
        EXPECT_TRUE(refused.out.empty() && Bytes(file) == before);
    }
    EXPECT_EQ(RunProgramFile({"import", csv, file, "--safe-notes"}).status, 0);
    EXPECT_TRUE(Has(Bytes(file), "home; sweet\r\n"));
    const RunResult forced = RunProgramFile({"import", csv, file, "--force"});
    EXPECT_EQ(forced.status, 1);
    EXPECT_TRUE(Has(forced.err, "is written, but") && Has(forced.err, "Pr3") &&
                Has(forced.out, "1 row taken"));
    EXPECT_TRUE(Has(Bytes(file), "home, sweet\r\n"));
    const RunResult failed = RunProgramFile({"import", csv, full, "--safe-notes"});
    EXPECT_TRUE(failed.status == 1 && failed.out.empty()) << "nothing was taken: " << failed.out;

    // A note that changes but does not keep the file from being opened is written, and named.
    PutBytes(csv, CsvLineOf("PRIORITY", 3, "145.5", "\"\"q\"\""));
    PutBytes(file, DemoFile());
    ExpectFailure({"import", csv, file}, "Data Error: ", "is written, but");
}

TEST_F(FileCommands, RepairShowsWhatItWouldChangeAndWritesOnlyWhenAsked)
{
    CloneImage image = DemoImage(0);
    image.MemData(3).note = "a,b";
    const std::string spoilt = FormatCloneFile(image);
    const std::string repaired = folder / "repaired.RQ5";
    PutBytes(file, spoilt);
    ExpectFailure({"check", file}, "Data Error: ", "rq-m5 repair");
    const RunResult shown = RunProgramFile({"repair", file});
    EXPECT_EQ(shown.status, 0);
    EXPECT_TRUE(shown.out.starts_with("line 1285, note of memory row 3: a,b -> a;b\n")) << shown.out;
    EXPECT_EQ(RunProgramFile({"repair", file, "--to", repaired}).status, 0);
    EXPECT_EQ(Bytes(file), spoilt);
    image.MemData(3).note = "a;b";
    EXPECT_EQ(Bytes(repaired), FormatCloneFile(image));
    ExpectFailure({"repair", file, "--to", repaired}, "File Open Error: ", "choose another name");
    EXPECT_EQ(RunProgramFile({"repair", file, "--in-place"}).status, 0);
    EXPECT_EQ(Bytes(file), Bytes(repaired));
    EXPECT_EQ(Bytes(file + "~"), spoilt);
    EXPECT_TRUE(Has(RunProgramFile({"repair", file, "--in-place"}).out, "nothing to repair"));
    EXPECT_EQ(Bytes(file + "~"), spoilt);
    PutBytes(file, "no clone file");
    ExpectFailure({"repair", file}, "Data Error: ", "line 1");
}

TEST_F(FileCommands, ExportAndPdfReplaceOnlyTheirOwnKind)
{
    const std::string link = folder / "hard link";
    PutBytes(file, DemoFile());
    ASSERT_EQ(::link(file.c_str(), link.c_str()), 0);
    ExpectFailure({"export", file, link, "--force"}, "File Open Error: ", "the same file");
    ExpectFailure({"print", file, "--force", "--pdf", link}, "File Open Error: ", "the same file");
    EXPECT_TRUE(Has(RunProgramFile({"new", link, "--force"}).err, "one of 2 names"));
    EXPECT_EQ(Bytes(file), DemoFile());
    const std::pair<Words, const char*> cases[] = {{{"export", file}, ""},
                                                   {{"print", file, "--pdf"}, "%PDF"}};
    for (const auto& [start, signature] : cases) {
        const std::string out = folder / "out";
        const auto with = [&start = start, &out](const char* option) {
            Words words = start;
            words.push_back(out);
            if (*option != '\0')
                words.emplace_back(option);
            return words;
        };
        PutBytes(out, DemoFile());
        ExpectFailure(with(""), "File Open Error: ", "this is a clone file");
        PutBytes(out, "dear diary");
        ExpectFailure(with(""), "File Open Error: ", "another kind");
        EXPECT_EQ(Bytes(out), "dear diary");
        EXPECT_EQ(RunProgramFile(with("--force")).status, 0);
        EXPECT_TRUE(Bytes(out).starts_with(signature) && Bytes(out) != "dear diary");
        EXPECT_EQ(RunProgramFile(with("")).status, 0) << "its own kind";
    }
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
            "   Off  Frequency   Mode  Step  Option  Skip  Carrier  Tone    Shift   ShiftFreq.  Note\n"
            "1       145.500000  FM    9KHz  OFF     *     300Hz    67.0Hz  +Shift  0.600000    東京\n"
            "2  x    145.500000  FM    9KHz  OFF     *     300Hz    67.0Hz  +Shift  0.600000    x\\x1B[2J\n"))
        << out;
    EXPECT_FALSE(Has(out, "\n3"));
    EXPECT_TRUE(Has(RunProgramFile({"show", file, "--all", "--tsv"}).out, "\tPr0\t\t145.500000\tFM"));
    EXPECT_TRUE(Has(RunProgramFile({"show", "--all", file}).out, "\nPr2\n"));
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
    EXPECT_FALSE(Has(run.err, "differently") || Has(run.err, "loses")) << run.err;
    image.MemData(205).shiftFrequency = 50000;
    image.MemData(206).note = "\"a, b\"";  // is read, and lost by the next save
    PutBytes(file, FormatCloneFile(image));
    const RunResult limits = RunProgramFile({"check", file});
    EXPECT_EQ(limits.status, 0);
    EXPECT_TRUE(Has(limits.err, "what the file says:\n  memory row 205 (Bank 1, channel 5): Shift frequency"))
        << limits.err;
    EXPECT_TRUE(Has(limits.err, "loses these notes; take commas and quotes out of them:\n  memory row 206"))
        << limits.err;
    EXPECT_TRUE(Has(RunProgramFile({"export", file, folder / "out.csv"}).err, "formulas:\n  memory row 205"));

    std::erase(bytes, '\r');
    bytes.replace(bytes.find('\n') + 3, 1, "x");  // in the first block
    PutBytes(file, bytes + "more");
    const RunResult odd = RunProgramFile({"check", file});
    EXPECT_EQ(odd.status, 0);
    EXPECT_TRUE(Has(odd.err, "\n  line 2 (settings block")) << odd.err;
    EXPECT_TRUE(Has(odd.err, "LF instead of CR LF") && Has(odd.err, "behind the last line")) << odd.err;
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
