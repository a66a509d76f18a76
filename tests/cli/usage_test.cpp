#include <gtest/gtest.h>

#include "cli/command_run.h"

namespace rqm5 {
namespace {

TEST(CommandLine, WrongUsageEndsWithStatusTwoAndAHint)
{
    // clang-format off
    const std::pair<Words, const char*> kCases[] = {
        {{}, "a command is missing"}, {{"raed", "x.RQ5"}, "did you mean \"read\""},
        {{"--versoin"}, "did you mean \"--version\""}, {{"no\x1b[31m"}, "\\x1B[31m"},
        {{"read", "--prot", "3", "x.RQ5"}, "did you mean \"--port\""}, {{"read", "--port"}, "--port needs a value"},
        {{"read", "--port", "0", "x.RQ5"}, "port numbers are 1 to 14"},
        {{"read", "--port=15", "x.RQ5"}, "port numbers are 1 to 14"},
        {{"write", "--port", "-1", "x.RQ5"}, "port numbers are 1 to 14"},
        {{"read", "--port", "3"}, "FILE is missing"}, {{"check", ""}, "FILE is empty"},
        {{"read", "--port", "3", "--port", "4", "x.RQ5"}, "given twice"},
        {{"read", "--only", "setting", "x.RQ5"}, "did you mean \"settings\""},
        {{"read", "--port", "COM15", "x.RQ5"}, "port numbers are 1 to 14"},
        {{"read", "--only", "settings", "--bank", "3", "x.RQ5"}, "--bank chooses channels"},
        {{"verify", "--only", "settings", "--bank", "all", "x.RQ5"}, "--bank chooses channels"},
        {{"show", "--bank", "50", "x.RQ5"}, "a bank 0 to 49"},
        {{"show", "--bank", "seach-pass", "x.RQ5"}, "did you mean \"search-pass\""},
        {{"new", "--region", "4", "x.RQ5"}, "regions are 0 to 3"},
        {{"new", "--empty=yes", "x.RQ5"}, "--empty takes no value"},
        {{"diff", "a", "b", "c"}, "too many arguments"}, {{"export", "x.RQ5", "x.RQ5"}, "the same file"},
        {{"print", "x.RQ5", "--settings", "--bank", "3"}, "add --memory"},
        {{"print", "x.RQ5", "--landscape"}, "add --pdf"},
        {{"print", "x.RQ5", "--pdf", "o.pdf", "--paper", "a5"}, "it is a4 or letter"},
        {{"print", "x.RQ5", "--pdf", "x.RQ5"}, "the same file"}, {{"print", "x.RQ5", "--force"}, "add --pdf"},
        {{"repair", "x.RQ5", "--in-place", "--to", "y"}, "choose one"}, {{"repair", "x.RQ5", "--to", ""}, "needs a value"},
        {{"repair", "--", "--", "x"}, "too many arguments"}, {{"check"}, "FILE is missing"},
        {{"set", "x", "bank:50", "mode=AM"}, "banks are 0 to 49"}, {{"set", "x", "mode=XM", "mode=AM"}, "FM, AM or WFM"},
        {{"set", "x", "all", "tune=1"}, "freq, mode, step"}, {{"set", "x", "all"}, "FIELD=VALUE is missing"},
        {{"enable", "x", "freq:9..1"}, "lower end"}, {{"enable", "x", "mode:AM"}, "with \"=\""},
        {{"enable", "x", "vfo,mode=AM"}, "beside"}, {{"copy", "x", "all", "mode=AM"}, "one place"},
        {{"merge", "x", "y"}, "--take"}, {{"sort", "x", "all", "--by", "moed"}, "did you mean \"mode\""},
        {{"find", "145"}, "FILE is missing"}, {{"show", "x", "--json", "--tsv"}, "choose one"},
        {{"diff", "x"}, "B is missing"}, {{"diff", "x", "y", "--port", "3"}, "leave B out"},
        {{"export", "x", "y", "z"}, "--to FOLDER"}, {{"print", "x", "y", "--pdf", "z"}, "takes one FILE"},
        {{"help", "raed"}, "did you mean \"read\""}, {{"completion", "sh"}, "bash, zsh or fish"},
        {{"raw", "--port", "3", "1008"}, "last digit is 0"}, {{"raw", "--port", "3", "12G0"}, "hexadecimal"},
        {{"raw", "--port", "3", "10000"}, "highest address is FFF0"},
    };
    // clang-format on
    for (const auto& [words, hint] : kCases) {
        const RunResult run = RunProgramFile(words);
        EXPECT_EQ(run.status, 2) << hint;
        EXPECT_TRUE(Has(run.err, hint) && Has(run.err, "--help") && run.out.empty()) << run.err;
    }
}

TEST(CommandLine, HelpAndVersionAreOnStandardOutput)
{
    EXPECT_EQ(RunProgramFile({"--version"}).out, "rq-m5 " RQM5_VERSION "\n");
    EXPECT_EQ(RunProgramFile({"-V"}).out, "rq-m5 " RQM5_VERSION "\n");
    EXPECT_EQ(RunProgramFile({"help", "read"}).out, RunProgramFile({"read", "-h"}).out);
    const RunResult help = RunProgramFile({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* command : {"new", "read", "write", "verify", "export", "import", "show", "check",
                                "repair", "diff", "ports", "raw", "set", "merge"}) {
        EXPECT_TRUE(Has(help.out, std::string("\n  ") + command + ' ')) << command;
        const RunResult own = RunProgramFile({command, "--help"});
        EXPECT_EQ(own.status, 0) << command;
        EXPECT_TRUE(own.out.starts_with(std::string("Usage: rq-m5 ") + command)) << own.out;
    }
}

}  // namespace
}  // namespace rqm5
