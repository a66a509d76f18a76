#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QDir>
#include <QFile>

#include <QDir>
#include <csignal>
#include <filesystem>
#include <future>
#include <mutex>
#include <regex>
#include <sstream>

#include "cli/command_run.h"
#include "cli/program.h"
#include "files/clone_file.h"
#include "files/file_store.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"
#include "simulator/sim_session.h"

namespace rqm5 {
namespace {

SimOptions Demo(std::vector<Fault> faults = {})
{
    SimOptions options;
    options.memory = MemoryFromImage(DemoImage(0));
    options.faults = std::move(faults);
    return options;
}

RunResult Transfer(const char* command, const SimSession& receiver, const std::string& file, Words more = {})
{
    more.insert(more.begin(), {command, "--port", receiver.Device().toStdString(), file});
    return RunProgramFile(more);
}

class Transfers : public testing::Test
{
  protected:
    Folder folder;
    const std::string file = folder / "radio.RQ5";
};

void ExpectOneLine(const RunResult& run, const std::string& message)
{
    EXPECT_EQ(run.status, 1) << message;
    EXPECT_TRUE(run.err.starts_with(message)) << run.err;
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
}

TEST_F(Transfers, APortThatCannotBeUsedIsNamedOnce)
{
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    ExpectOneLine(RunProgramFile({"read", "--port", "/dev/no\x1bsuch", file}),
                  "COM Port Error: /dev/no\\x1Bsuch: no such device. ");
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    const RunResult write = RunProgramFile({"write", "--port", pipe, file});
    ExpectOneLine(write, "COM Port Error: " + pipe + ": not a serial port");
    EXPECT_TRUE(Has(write.err, "Sent: nothing. Not sent: settings, VFO bands, region presets, bank sizes, "))
        << write.err;
    EXPECT_FALSE(Has(write.err, "Refused")) << "nothing left the computer";
}

TEST_F(Transfers, ReadChangeWriteAndVerifyTheWholeMemory)
{
    const std::string csv = folder / "radio.csv";
    SimSession receiver(Demo());
    const RunResult read = Transfer("read", receiver, file);
    EXPECT_TRUE(read.status == 0 && read.err.empty()) << read.err;
    const RunResult same = Transfer("verify", receiver, file);
    EXPECT_TRUE(same.status == 0 && (same.out + same.err).empty()) << same.out << same.err;

    PutBytes(csv, CsvLineOf("SEARCH PASS", 7, "145.625", "new"));
    EXPECT_EQ(RunProgramFile({"import", csv, file}).status, 0);
    const RunResult differs = Transfer("verify", receiver, file);
    EXPECT_EQ(differs.status, 1);
    EXPECT_TRUE(Has("\n" + differs.out, "\n5530  ") && Has(differs.out, "expected 0145625000") &&
                Has(differs.out, "Enable flags of rows 1024 to 1151"))
        << differs.out;
    EXPECT_TRUE(Has(differs.out, "byte 10 (row 1107)\n") &&
                Has(differs.out, "byte 2 (Search Pass count)\n") &&
                Has(differs.out, "  bytes 0 to 3 (Frequency), byte 5 (Mode), "))
        << differs.out;
    EXPECT_EQ(Transfer("verify", receiver, file, {"--only=settings"}).out, "") << "the count is the memory's";

    EXPECT_TRUE(
        Has(Transfer("verify", receiver, file, {"--json"}).out,
            R"({"complete":true,"differences":[{"address":"0050","block":"Settings 2","expected":")"));
    const RunResult fields = Transfer("diff", receiver, file, {"-v"});
    EXPECT_TRUE(fields.status == 1 &&
                Has(fields.out, "memory row 1107 (Search Pass S7): 145.625000 AM -> empty"))
        << fields.out;
    EXPECT_FALSE(Has(fields.out, "Note")) << "the receiver has none";
    EXPECT_TRUE(Has(fields.err, "QT~F5530R\\r -> ")) << fields.err.substr(0, 200);
    EXPECT_TRUE(Has(Transfer("diff", receiver, file, {"--json"}).out,
                    R"("row":1107,"place":"search-pass/8","before":)"));
    EXPECT_TRUE(Transfer("read", receiver, "-").out.starts_with("Tervan  RQ-M5  Clone  File Start\r\n"));

    EXPECT_EQ(Transfer("write", receiver, file).status, 0);
    EXPECT_EQ(receiver.Memory().At(0x5530).Text().substr(0, 10), "0145625000");
    EXPECT_EQ(Transfer("verify", receiver, file).status, 0);
    // Notes are only in files: a second read keeps them.
    EXPECT_EQ(Transfer("read", receiver, file).status, 0);
    EXPECT_TRUE(Has(Bytes(file), "\r\nnew\r\n"));
}

TEST_F(Transfers, MoveOnlyWhatIsAskedFor)
{
    const CloneImage image = StartUpImage(0);
    PutBytes(file, FormatCloneFile(image));
    SimSession receiver(Demo());
    const ReceiverMemory before = receiver.Memory();
    const Words priority = {"--bank", "priority"};
    const RunResult write = Transfer("write", receiver, file, priority);
    EXPECT_EQ(write.status, 0);
    int others = 0;
    for (int row = 0; row < kRadioRows - 10; ++row)
        others += DemoImage(0).MemEnable(row) ? 1 : 0;
    EXPECT_EQ(write.err, "Enable flags of other rows that differ from FILE: " + std::to_string(others) +
                             "; the receiver keeps its own.\n");
    const ReceiverMemory after = receiver.Memory();
    EXPECT_TRUE(after.At(0x0040) == before.At(0x0040) && after.At(0x1000) == before.At(0x1000));
    EXPECT_EQ(after.At(0x5B00), MemoryFromImage(image).At(0x5B00));
    EXPECT_EQ(Transfer("verify", receiver, file, priority).status, 0);
    receiver.ClearCommandLog();
    EXPECT_EQ(Transfer("read", receiver, file, {"--only=settings"}).status, 0);
    EXPECT_EQ(receiver.CommandLog().size(), 16U);
    for (const char* command : {"read", "write", "verify"}) {
        receiver.ClearCommandLog();
        EXPECT_EQ(Transfer(command, receiver, file, {"--bank=all"}).status, 0);
        for (const std::string& sent : receiver.CommandLog())
            EXPECT_FALSE(sent.starts_with("QT~F0040") || sent.starts_with("QT~F0C")) << command << sent;
    }
}

/// What a read leaves in the user's state folder.
QStringList Rescued(const QString& state)
{
    return QDir(state + QStringLiteral("/rq-m5-clone")).entryList({QStringLiteral("recovery-read-*.RQ5")});
}

TEST_F(Transfers, AReadThatCannotBeSavedIsKeptElsewhere)
{
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
    const std::string inside = folder / "folder/radio.RQ5";
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    for (const bool isBackup : {false, true}) {
        ASSERT_TRUE(QDir().mkpath(QString::fromStdString(folder / "folder")));
        SimOptions options = Demo();
        int commands = 0;
        options.onCommand = [&](const std::string&) {
            if (++commands == 30)
                QDir(QString::fromStdString(folder / "folder")).removeRecursively();
        };
        const SimSession receiver(options);
        const ReceiverMemory before = receiver.Memory();
        const RunResult run = isBackup ? Transfer("write", receiver, file, {"--backup", inside})
                                       : Transfer("read", receiver, inside);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(Has(run.err, "nothing was written"), isBackup) << run.err;
        EXPECT_EQ(receiver.Memory(), before);
        const QStringList kept = Rescued(state.path());
        ASSERT_EQ(kept.size(), 1);
        const QString path = state.path() + QStringLiteral("/rq-m5-clone/") + kept.constFirst();
        EXPECT_TRUE(Has(run.err, path.toStdString())) << run.err;
        CloneImage image;
        ASSERT_FALSE(LoadCloneFile(path, image));
        EXPECT_TRUE(image.MemData(0) == ImageFromMemory(receiver.Memory(), {}).MemData(0));
        QFile::remove(path);
    }
    // A note between quotes may hold a comma that the next save would not survive.
    CloneImage image = StartUpImage(0);
    image.MemData(1203).note = "\"a, b\"";
    PutBytes(file, FormatCloneFile(image));
    const SimSession receiver(Demo());
    const RunResult run = Transfer("read", receiver, file, {"--only=settings"});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(Has(run.err, "is as it was") && Has(run.err, "memory row 1203")) << run.err;
    EXPECT_EQ(Bytes(file), FormatCloneFile(image));
    EXPECT_EQ(Rescued(state.path()).size(), 1);
    qunsetenv("XDG_STATE_HOME");
}

using Write = Transfers;

TEST_F(Write, KeepsABackupAndReadsBackWhenItIsAskedTo)
{
    const std::string copy = folder / "copy.RQ5";
    EXPECT_EQ(RunProgramFile({"new", "--region", "1", file}).status, 0);
    SimSession receiver(Demo());
    const ReceiverMemory before = receiver.Memory();
    const RunResult other = Transfer("write", receiver, file, {"--backup", folder / "first.RQ5"});
    ExpectOneLine(other,
                  "Data Error: The receiver is an RQ-M5 J, and what is to be written is for an RQ-M5 E.");
    EXPECT_EQ(receiver.Memory(), before) << "another model";
    EXPECT_EQ(Transfer("write", receiver, file, {"--bank=3", "--backup", folder / "bank.RQ5"}).status, 0)
        << "the model was not read";
    receiver.SetMemory(before);
    const RunResult run = Transfer("write", receiver, file, {"--backup", copy, "--verify", "--force"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_NE(receiver.Memory(), before);

    EXPECT_EQ(Transfer("write", receiver, copy, {"--verify"}).status, 0);
    EXPECT_EQ(MemoryFromImage(ImageFromMemory(receiver.Memory(), {})),
              MemoryFromImage(ImageFromMemory(before, {})));
}

TEST_F(Write, WithoutABackupThatWasAskedForNothingIsWritten)
{
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    const std::tuple<std::string, Fault, const char*> cases[] = {
        {file, {}, "File Open Error"},
        {folder / "none/copy.RQ5", {}, "does not exist"},
        {folder / "copy.RQ5", {FaultKind::HangUp, 1, 0, 30}, "COM Port Error"},
    };
    for (const auto& [copy, fault, text] : cases) {
        const SimSession receiver(Demo({fault}));
        const ReceiverMemory before = receiver.Memory();
        const std::string bytes = Bytes(file);
        const RunResult run = Transfer("write", receiver, file, {"--backup", copy});
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(Has(run.err, text) && Has(run.err, "nothing was written")) << run.err;
        EXPECT_EQ(receiver.Memory(), before);
        EXPECT_EQ(Bytes(file), bytes);
        EXPECT_EQ(Bytes(folder / "copy.RQ5"), "");
    }
}

TEST_F(Write, ThatFailedIsNotVerified)
{
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    const SimSession receiver(Demo({{FaultKind::Ng, 10, 0, 7}}));
    const RunResult run = Transfer("write", receiver, file, {"--only=settings", "--verify"});
    ExpectOneLine(run, "Communication Error: Block 0C50");
    EXPECT_EQ(receiver.CommandLog().size(), 17U);
}

TEST_F(Write, ChangesAreAllThatIsMovedAndNothingThatWasChangedThereIsLost)
{
    const QTemporaryDir cache;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    const std::string old = folder / "old.RQ5";
    const std::string copy = folder / "copy.RQ5";
    SimSession receiver(Demo());
    ASSERT_EQ(Transfer("read", receiver, file).status, 0);
    PutBytes(old, Bytes(file));
    PutBytes(folder / "edit.csv", CsvLineOf("SEARCH PASS", 7, "145.625", "new"));
    ASSERT_EQ(RunProgramFile({"import", folder / "edit.csv", file}).status, 0);
    const ReceiverMemory before = receiver.Memory();
    // In the row that the file changes, too.
    ReceiverMemory turned = before;
    turned.At(0x5530) = turned.At(0x54C0);
    receiver.SetMemory(turned);
    const struct
    {
        Words options;
        int status;
        std::size_t fewest, most;  ///< commands on the line
        const char* text;
    } cases[] = {
        {{"--known", old}, 1, 11, 11, "Row 1107 (Search Pass S7), Frequency: known "},
        {{"--known", folder / "none.RQ5"}, 1, 0, 0, "Nothing was written."},
        {{}, 1, 20 + 7 + 11, 20 + 7 + 11, "Not known of the receiver: 7 blocks, less than a second.\n"},
        {{}, 1, 20 + 11, 20 + 11, "Row 1107 (Search Pass S7), Frequency: known "},
        {{"--bank=3"}, 2, 0, 0, "leave out --bank"},
    };
    for (const auto& test : cases) {
        Words options = test.options;
        options.emplace_back("--changes");
        receiver.ClearCommandLog();
        const RunResult run = Transfer("write", receiver, file, options);
        EXPECT_EQ(run.status, test.status) << run.err;
        EXPECT_TRUE(Has(run.err, test.text)) << run.err;
        EXPECT_GE(receiver.CommandLog().size(), test.fewest) << test.text;
        EXPECT_LE(receiver.CommandLog().size(), test.most) << test.text;
        EXPECT_EQ(receiver.Memory(), turned);
    }
    receiver.SetMemory(before);
    EXPECT_EQ(Transfer("write", receiver, file, {"--known", old}).status, 2) << "without --changes";
    receiver.ClearCommandLog();
    const RunResult run =
        Transfer("write", receiver, file, {"--changes", "--known", old, "--backup", copy, "--verify"});
    EXPECT_TRUE(run.status == 0 && (run.out + run.err).empty()) << run.out << run.err;
    EXPECT_LT(receiver.CommandLog().size(), 30U);
    EXPECT_EQ(Transfer("verify", receiver, file).status, 0);
    EXPECT_TRUE(Has(Transfer("write", receiver, file, {"--changes"}).err, "nothing was written"));
    EXPECT_EQ(Bytes(copy), Bytes(old));
    ASSERT_EQ(RunProgramFile({"new", "--region=1", "--force", file}).status, 0);
    const RunResult other = Transfer("write", receiver, file, {"--changes"});
    EXPECT_TRUE(other.status == 1 && Has(other.err, "repeat with --force. Nothing was written."))
        << other.err;
    EXPECT_EQ(Transfer("write", receiver, file, {"--changes", "--force"}).status, 0);
    EXPECT_EQ(Transfer("verify", receiver, file).status, 0);
    qunsetenv("XDG_CACHE_HOME");
}

TEST_F(Transfers, SayHowManyBlocksNeededMoreThanOneAttempt)
{
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    const std::pair<Fault, const char*> cases[] = {
        {{}, ""},
        {{.kind = FaultKind::Garble, .after = 5}, "1 block needed more than one attempt\n"},
        {{.kind = FaultKind::Garble, .count = 5}, "1 block needed more than one attempt\n"},
    };
    for (const auto& [fault, text] : cases)
        for (const char* command : {"read", "write"}) {
            const SimSession receiver(Demo({fault}));
            const RunResult run = Transfer(command, receiver, file, {"--only=settings"});
            EXPECT_EQ(run.status, 0);
            EXPECT_EQ(run.out + run.err, text);
        }
    const SimSession smearing(Demo({{.kind = FaultKind::Smear, .after = 5}}));
    EXPECT_EQ(Transfer("read", smearing, file, {"--only=settings"}).err,
              "1 block needed more than one attempt\n");
    const Fault single{.kind = FaultKind::Garble};
    const SimSession receiver(
        Demo({single, {.kind = FaultKind::Garble, .after = 4}, {.kind = FaultKind::Garble, .after = 30}}));
    EXPECT_EQ(Transfer("write", receiver, file, {"--only=settings", "--verify"}).err,
              "3 blocks needed more than one attempt\n");
}

/// What a receiver holds whose line sends line ends and nothing else, or other signs in single blocks.
SimOptions Disturbed(const std::vector<int>& addresses, const std::string& characters)
{
    SimOptions options = Demo();
    for (const int address : addresses)
        options.memory.At(address) = MemoryBlock(characters);
    return options;
}

TEST_F(Transfers, NameWhatCameDisturbedAndKeepTheFileAsItWas)
{
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    const std::string before = Bytes(file);
    ASSERT_EQ(chmod(file.c_str(), S_IRUSR | S_IWUSR), 0);
    const SimSession receiver(Disturbed({0x5B10, 0x5B90}, "01455000000000000000001000600Z00"));
    const Words priority = {"--only", "memory", "--bank", "priority"};
    RunResult run = Transfer("read", receiver, file, priority);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.err.starts_with(
        "Communication Error: 2 blocks were read with characters that are no hex digits:\n"
        "  Row 1201 (Priority Pr1)\n  Row 1209 (Priority Pr9)\n"))
        << run.err;
    EXPECT_TRUE(Has(run.err, "kept as " + file + "~")) << run.err;
    EXPECT_EQ(Bytes(file + "~"), before);
    EXPECT_NE(Bytes(file), before);
    struct stat kept
    {
    };
    ASSERT_EQ(stat((file + "~").c_str(), &kept), 0);
    EXPECT_EQ(kept.st_mode & 0777U, 0600U);
    EXPECT_EQ(receiver.CommandLog().size(), 28U + 2 * 3);

    // Without a place for the old file it is not replaced.
    const std::string now = Bytes(file);
    ASSERT_TRUE(std::filesystem::remove(file + "~") && std::filesystem::create_directory(file + "~"));
    run = Transfer("read", receiver, file, priority);
    EXPECT_TRUE(run.status == 1 && Has(run.err, "is as it was")) << run.err;
    EXPECT_EQ(Bytes(file), now);
}

TEST_F(Transfers, LineEndsAloneMakeNoFileThatIsWhole)
{
    std::vector<int> addresses;
    for (int address = 0; address < 0x5BA0; address += 0x10)
        addresses.push_back(address);
    std::string lineEnds;
    while (lineEnds.size() < kBlockChars)
        lineEnds += "\r\n";
    SimSession receiver(Demo());
    EXPECT_EQ(Transfer("read", receiver, file).status, 0);
    const std::string full = Bytes(file);
    receiver.SetMemory(Disturbed(addresses, lineEnds).memory);
    const RunResult run = Transfer("read", receiver, file);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(Has(run.err, "1244 blocks") && Has(run.err, "  Row 978 (")) << run.err.substr(0, 200);
    EXPECT_EQ(Bytes(file + "~"), full);
}

TEST_F(Transfers, ReadTwiceOnRequestAndNameWhatCameOtherwise)
{
    const Words settings = {"--only=settings", "--verify"};
    const SimSession sound(Demo());
    RunResult run = Transfer("read", sound, file, settings);
    EXPECT_TRUE(run.status == 0 && (run.out + run.err).empty()) << run.err;
    EXPECT_EQ(sound.CommandLog().size(), 32U);
    const std::string right = Bytes(file);
    // The digit is wrong in the first read.
    const SimSession receiver(Demo({{.kind = FaultKind::Flip, .after = 5}}));
    run = Transfer("read", receiver, file, settings);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(
        run.err.starts_with("Communication Error: 1 block was different when it was read again:\n"
                            "  VFO 3: first "))
        << run.err;
    EXPECT_EQ(Bytes(file + "~"), right);
    // A second read that breaks off leaves nothing to be saved.
    const SimSession broken(Demo({{.kind = FaultKind::HangUp, .after = 20}}));
    run = Transfer("read", broken, folder / "new.RQ5", settings);
    EXPECT_TRUE(run.status == 1 && Has(run.err, "not all of it could be read again")) << run.err;
    EXPECT_FALSE(std::filesystem::exists(folder / "new.RQ5"));
}

TEST_F(Transfers, ComNumbersStandForDevices)
{
    const SimSession receiver(Demo());
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    qputenv("RQM5_COM13", pipe.c_str());
    qputenv("RQM5_COM14", receiver.Device().toLocal8Bit());
    const std::string ports = RunProgramFile({"ports"}).out;
    EXPECT_TRUE(Has(ports, "COM 14  " + receiver.Device().toStdString())) << ports;
    EXPECT_TRUE(Has(ports, "can be opened") && Has(ports, pipe + "  not a serial port")) << ports;
    for (const char* number : {"14", "COM14", "COM 14", "com14"})
        EXPECT_EQ(RunProgramFile({"raw", "--port", number, "1000"}).status, 0) << number;
    qunsetenv("RQM5_COM13");
    qunsetenv("RQM5_COM14");
    EXPECT_EQ(receiver.CommandLog(), Words(4, "QT~F1000R"));
}

TEST_F(Transfers, ADeviceOrLinkOfTheCurrentFolderGoesByItsName)
{
    const SimSession receiver(Demo());
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(folder / "deep")));
    for (const char* name : {"rx", "deep/rx"}) {
        ASSERT_TRUE(QFile::link(receiver.Device(), QString::fromStdString(folder / name)));
        QProcess process;
        process.setWorkingDirectory(QString::fromStdString(folder / "."));
        StartProgram(process, {"raw", "--port", name, "0040"});
        EXPECT_EQ(FinishProgram(process).status, 0) << name;
    }
}

TEST_F(Transfers, NameThePortThatTheyChoseThemselves)
{
    EXPECT_EQ(RunProgramFile({"new", file}).status, 0);
    for (int number = 1; number <= 14; ++number)
        qputenv(qPrintable(QStringLiteral("RQM5_COM%1").arg(number)), "/no/such");
    for (const char* command : {"read", "write", "verify"}) {
        const RunResult run = RunProgramFile({command, file});
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.err.starts_with("Port: COM 1, /no/such (")) << run.err;
        EXPECT_TRUE(Has(run.err, "\nCOM Port Error: COM 1, /no/such: no such device. ")) << run.err;
    }
    SimSession receiver(Demo({{FaultKind::Garble, 10, 0, 0}}));
    qputenv("RQM5_COM1", receiver.Device().toLocal8Bit());
    EXPECT_TRUE(Has(RunProgramFile({"read", file}).err,
                    "\nCommunication Error: COM 1, " + receiver.Device().toStdString() + ": Block 0040"));
    for (int number = 1; number <= 14; ++number)
        qunsetenv(qPrintable(QStringLiteral("RQM5_COM%1").arg(number)));
}

TEST_F(Transfers, EndWithALineAtATerminalUnlessTheyAreToBeQuiet)
{
    const std::tuple<Words, const char*, const char*> cases[] = {
        {{"new", file}, "", ""},
        {{"read", "--bank", "3", file},
         "^Read in [0-9]+:[0-9][0-9]: [0-9]+ channels on, [0-9]+ rows, .* changed\\n$",
         "--quiet"},
        {{"read", "--bank", "3", "--verify", file},
         "^Read in [0-9]+:[0-9][0-9] and verified: [0-9]+ channels on, nothing changed\\n$",
         "-q"},
        {{"write", "--bank", "3", "--verify", file}, "^Written in [0-9]+:[0-9][0-9] and verified\n$", "-q"},
        {{"verify", "--bank", "3", file}, "^Compared in [0-9]+:[0-9][0-9]: no block differs\n$", "-q"},
    };
    const SimSession receiver(Demo());
    for (auto [words, line, quiet] : cases)
        for (const int columns : {80, 0, 80}) {
            std::ostringstream out;
            std::ostringstream err;
            Console console{out, err, columns};
            if (*line != '\0')
                words.insert(words.begin() + 1, {"--port", receiver.Device().toStdString()});
            EXPECT_EQ(RunProgram(words, console), Status::Done) << err.str();
            const std::string shown = err.str().substr(err.str().rfind('\r') + 1);
            if (columns > 0 && words.back() == file)
                EXPECT_TRUE(std::regex_search(shown, std::regex(line))) << shown;
            else
                EXPECT_EQ(err.str(), "");
            if (*line == '\0')
                break;
            words.erase(words.begin() + 1, words.begin() + 3);
            if (columns == 0)
                words.emplace_back(quiet);
        }
}

TEST(RawCommand, ShowsTheReplyAndWhatItMeans)
{
    SimOptions options = Demo();
    options.memory.At(0x1010) = MemoryBlock("01455000000000080000001000600000");
    SimSession receiver(options);
    const RunResult run = Transfer("raw", receiver, "0x1010");
    EXPECT_EQ(run.status, 0) << run.err;
    for (const char* part :
         {"QT~F1010R\\r\\r\\n01455000000000080000001000600000\\r\\n", "memory row 1\n", "145.500000"})
        EXPECT_TRUE(Has(run.out, part)) << run.out;
    receiver.SetFaults({{FaultKind::Garble, 1, 0, 0}});
    ExpectOneLine(Transfer("raw", receiver, "0040"), "Communication Error: Block 0040");
}

TEST_F(Transfers, CtrlCEndsThemCleanly)
{
    EXPECT_EQ(RunProgramFile({"new", "--region", "1", file}).status, 0);
    const std::string before = Bytes(file);
    for (const char* command : {"read", "write", "verify"})
        for (const int signal : {SIGINT, SIGTERM}) {
            std::promise<void> isBusy;
            int commands = 0;
            SimOptions options = Demo();
            options.baud = 9600;
            options.onCommand = [&](const std::string&) {
                if (++commands == 5)
                    isBusy.set_value();
            };
            const SimSession receiver(options);
            QProcess process;
            StartProgram(process, {command, "--port", receiver.Device().toStdString(), file});
            ASSERT_TRUE(process.waitForStarted());
            isBusy.get_future().wait();
            kill(static_cast<pid_t>(process.processId()), signal);
            const RunResult run = FinishProgram(process);
            EXPECT_EQ(run.status, signal == SIGINT ? 130 : 1) << command;
            EXPECT_TRUE(run.err.starts_with("Cancelled.\n")) << run.err;
            EXPECT_EQ(Has(run.err, "Not sent: "), std::string_view(command) == "write") << run.err;
            EXPECT_EQ(Bytes(file), before) << command;
            EXPECT_LT(receiver.CommandLog().size(), 100U) << command;
        }
}

TEST_F(Transfers, ASignalEndsARawReadAndUnderNohupNoRead)
{
    const std::tuple<int, Words, FaultKind, int, const char*> cases[] = {
        {SIGINT, {"raw", "0040"}, FaultKind::Silent, 130, "Cancelled.\n"},
        {SIGHUP, {"read", file, "--only=settings"}, FaultKind::None, 0, ""},
    };
    for (const auto& [signal, words, fault, status, text] : cases) {
        std::promise<void> isBusy;
        std::once_flag isFirst;
        SimOptions options = Demo({{.kind = fault}});
        options.baud = 9600;
        options.onCommand = [&](const std::string&) { std::call_once(isFirst, [&] { isBusy.set_value(); }); };
        const SimSession receiver(options);
        QProcess process;
        Words all = words;
        all.insert(all.end(), {"--port", receiver.Device().toStdString()});
        // The program inherits it, as under nohup.
        auto* const before = std::signal(SIGHUP, SIG_IGN);
        StartProgram(process, all);
        const bool isStarted = process.waitForStarted();
        std::signal(SIGHUP, before);
        ASSERT_TRUE(isStarted);
        isBusy.get_future().wait();
        kill(static_cast<pid_t>(process.processId()), signal);
        const RunResult run = FinishProgram(process);
        EXPECT_EQ(run.status, status) << words[0];
        EXPECT_EQ(run.err, text);
    }
}

}  // namespace
}  // namespace rqm5
