#include <gtest/gtest.h>

#include "cli/command_run.h"

namespace rqm5 {
namespace {

/// Runs the program as somebody of that language does.
RunResult RunIn(const char* language, const Words& words)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LANG"), QLatin1String(language));
    process.setProcessEnvironment(environment);
    StartProgram(process, words);
    return FinishProgram(process);
}

/// What scripts read is the same everywhere: standard output, the status, how an error begins. The rest is
/// for people.
TEST(Languages, AreSpokenBesideWhatScriptsRead)
{
    const Folder folder;
    const std::string file = folder / "a.RQ5";
    const std::string cut = folder / "cut.RQ5";
    ASSERT_EQ(RunIn("C", {"new", file, "--region", "1"}).status, 0);
    // A note that a spreadsheet would run, which check warns of.
    ASSERT_EQ(RunIn("C", {"set", file, "memory:3", "freq=145.5", "note==Tower"}).status, 0);
    std::ofstream(cut) << Bytes(file).substr(0, 1000);
    const struct
    {
        Words words;
        const char* start;  ///< of standard error
        bool isForPeople;   ///< standard output, too
    } cases[] = {
        {{"check", file}, "Warning: ", false},
        {{"check", "--json", file}, "", false},
        {{"show", file}, "", false},
        {{"print", file}, "", false},
        {{"diff", file, cut}, "Data Error: ", false},
        {{"check", folder / "none.RQ5"}, "File Open Error: ", false},
        {{"set", file, "memory:3", "mode=XX"}, "rq-m5 set: ", false},
        {{"sho", file}, "rq-m5: ", false},
        {{"completion", "bash"}, "", false},
        {{"--help"}, "", true},
        {{"import", "--help"}, "", true},
    };
    for (const auto& [words, start, isForPeople] : cases) {
        const RunResult english = RunIn("C.UTF-8", words);
        for (const char* language : {"de_DE.UTF-8", "es_ES.UTF-8", "fr_FR.UTF-8", "ja_JP.UTF-8"}) {
            const RunResult said = RunIn(language, words);
            const std::string what = language + (" " + words[0]);
            EXPECT_EQ(said.status, english.status) << what;
            EXPECT_EQ(said.out == english.out, !isForPeople) << what << said.out;
            EXPECT_TRUE(said.err.starts_with(start)) << what << ": " << said.err;
            EXPECT_EQ(said.err != english.err, *start != '\0') << what << ": " << said.err;
        }
    }
}

/// Numbers in files have a point in every language, and files are the same byte for byte.
TEST(Languages, LeaveFilesAsTheyAre)
{
    const Folder folder;
    std::string first;
    for (const char* language : {"C.UTF-8", "de_DE.UTF-8", "ja_JP.UTF-8"}) {
        const std::string file = folder / (std::string(language) + ".RQ5");
        const std::string csv = file + ".csv";
        RunIn(language, {"new", file});
        RunIn(language, {"set", file, "memory:0-3", "freq=118.05", "note=Flughafen"});
        EXPECT_EQ(RunIn(language, {"export", file, csv}).status, 0);
        const std::string bytes = Bytes(file) + Bytes(csv);
        EXPECT_NE(bytes.find("118.05"), std::string::npos);
        EXPECT_EQ(first.empty() ? bytes : first, bytes) << language;
        first = bytes;
    }
}

}  // namespace
}  // namespace rqm5
