#include <gtest/gtest.h>

#include <algorithm>

#include "cli/clone_files.h"
#include "cli/command_run.h"
#include "files/file_store.h"
#include "memory/start_image.h"
#include "printing/pdf_text.h"

namespace rqm5 {
namespace {

/// A file with one channel, in bank 2.
std::string FileWithAChannel(const Folder& folder)
{
    CloneImage image = StartUpImage(0);
    image.MemText[351] = {"145.500000", "FM", "10KHz", "OFF", "", "JR", "88.5Hz", "OFF", "0.600000", "東京"};
    image.MemData[351] = {145.5, 0, 4, 0, 0, 28, 8, 0, 0.6};
    image.MemEnable[351] = true;
    const std::string path = folder / "my.RQ5";
    EXPECT_FALSE(SaveCloneFile(PathOf(path), image).problem);
    return path;
}

TEST(PrintCommand, PrintsTheChosenPartsAsText)
{
    const Folder folder;
    const std::string file = FileWithAChannel(folder);
    const RunResult all = RunProgramFile({"print", file});
    EXPECT_EQ(all.status, 0) << all.err;
    EXPECT_LT(all.out.find("Settings\n"), all.out.find("\nVFO\n"));
    EXPECT_LT(all.out.find("\nVFO\n"), all.out.find("\nMemory: Bank 0 (0 of 200 rows used)\n"));
    EXPECT_TRUE(Has(all.out, "Memory: Bank 2 (1 of 150 rows used)\n"));

    const RunResult bank = RunProgramFile({"print", file, "--memory", "--bank", "2"});
    EXPECT_TRUE(Has(bank.out, "\n1       145.500000  FM    10KHz  OFF"));
    EXPECT_EQ(std::count(bank.out.begin(), bank.out.end(), '\n'), 4);
    const RunResult empty = RunProgramFile({"print", file, "--memory", "--bank", "2", "--empty"});
    EXPECT_EQ(std::count(empty.out.begin(), empty.out.end(), '\n'), 3 + 150);
    EXPECT_TRUE(
        Has(RunProgramFile({"print", file, "--memory", "--bank", "priority"}).out, "= No Entries =\n"));
    EXPECT_FALSE(Has(RunProgramFile({"print", file, "--settings", "--vfo"}).out, "Memory: "));
}

TEST(PrintCommand, WritesAPdfOrSaysWhyNot)
{
    const Folder folder;
    const std::string file = FileWithAChannel(folder);
    const std::string pdf = folder / "out.pdf";
    const RunResult done = RunProgramFile({"print", file, "--pdf", pdf, "--paper", "letter", "--landscape"});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out + done.err, "");
    EXPECT_TRUE(PdfPages(PathOf(pdf)).last().contains(QStringLiteral("my.RQ5")));
    EXPECT_FALSE(PdfWords(PathOf(pdf), QSizeF(792, 612)).empty());
    const RunResult failed = RunProgramFile({"print", file, "--pdf", folder / "none/out.pdf"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(Has(failed.err, "none")) << failed.err;
}

}  // namespace
}  // namespace rqm5
