#include "files/file_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <clocale>
#include <csignal>
#include <locale>

#include "files/clone_file.h"
#include "files/csv_file.h"
#include "files/file_kind.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"

namespace rqm5 {
namespace {

class FileStore : public testing::Test
{
  protected:
    QString Path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }

    void Write(const QString& path, const std::string& bytes) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }

    std::string Read(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    /// Files of the folder, left-overs included.
    int FileCount() const
    {
        return static_cast<int>(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden).size());
    }

    QTemporaryDir folder_;
};

void ExpectProblem(const std::optional<Problem>& problem, const char* text, const char* details)
{
    ASSERT_TRUE(problem) << details;
    EXPECT_EQ(problem->text, text);
    EXPECT_NE(problem->details.English().find(details), std::string::npos) << problem->details.English();
}

TEST_F(FileStore, WhatIsSavedIsLoadedAndWhatIsExportedImported)
{
    const CloneImage image = DemoImage(1);
    CloneImage loaded, imported, expected;
    const SaveOutcome outcome = SaveCloneFile(Path("a.RQ5"), image);
    EXPECT_TRUE(!outcome.problem && outcome.lostNotes.empty());
    EXPECT_FALSE(LoadCloneFile(Path("a.RQ5"), loaded));
    EXPECT_TRUE(loaded == image);

    CsvTaken taken;
    EXPECT_FALSE(ExportCsv(Path("a.csv"), image));
    EXPECT_EQ(Read(Path("a.csv")), FormatCsv(image));
    EXPECT_TRUE(!ImportCsv(Path("a.csv"), imported, taken) && taken.rows == 1224);
    ParseCsv(FormatCsv(image), expected);
    EXPECT_TRUE(imported == expected);
    ExpectProblem(ImportCsv(Path("no.csv"), imported, taken), "File Open Error", "no such file");
    EXPECT_TRUE(taken.rows == 0 && imported == expected);
    EXPECT_EQ(FileCount(), 2);
}

TEST_F(FileStore, ASaveNamesTheNotesThatDoNotComeBack)
{
    CloneImage image = StartUpImage(0);
    image.VFOData(3).note = "\"quoted\"";
    const std::vector<Message> lost = {"VFO row 3", "memory row 12 (Bank 0, channel 12)"};
    for (const char* note : {"\xFF", "a,b"}) {  // with the second the whole file cannot be loaded any more
        image.MemData(12).note = note;
        EXPECT_EQ(SaveCloneFile(Path("a.RQ5"), image).lostNotes, lost);
    }
}

TEST_F(FileStore, WhatCannotBeReadLeavesTheImageAsItWas)
{
    QDir(folder_.path()).mkdir(QStringLiteral("folder.RQ5"));
    ASSERT_EQ(mkfifo(QFile::encodeName(Path("pipe")).constData(), 0600), 0);
    Write(Path("large"), "");
    ASSERT_TRUE(QFile::resize(Path("large"), qint64{1} << 30));
    Write(Path("empty"), "");
    Write(Path("text"), "no clone\r\nfile\r\n");
    const std::array<const char*, 3> cases[] = {
        {"no/folder", "File Open Error", "/no/folder: there is no such file"},
        {"line\nbreak", "File Open Error", "/line\\nbreak: there is no such file"},
        {"folder.RQ5", "File Open Error", "this is a folder"},
        {"pipe", "File Open Error", "this is a device"},
        {"large", "File Open Error", "larger than 16 MiB"},
        {"empty", "Data Error", "/empty: the file is empty"},
        {"text", "Data Error", "/text: line 1 is not"},
    };
    const CloneImage before = DemoImage(3);
    for (const auto& [name, text, details] : cases) {
        CloneImage image = before;
        ExpectProblem(LoadCloneFile(Path(name), image), text, details);
        EXPECT_TRUE(image == before) << name;
    }
}

TEST_F(FileStore, WhatCannotBeWrittenLeavesEverythingAsItWas)
{
    QDir(folder_.path()).mkdir(QStringLiteral("folder"));
    ASSERT_EQ(mkfifo(QFile::encodeName(Path("pipe")).constData(), 0600), 0);
    Write(Path("file"), "old");
    const std::pair<const char*, const char*> cases[] = {{"folder", "this is a folder"},
                                                         {"pipe", "this is a device"},
                                                         {"no/file", "/no does not exist"},
                                                         {"file/inside", "/file does not exist"}};
    const CloneImage image = StartUpImage(0);
    for (const auto& [name, reason] : cases)
        ExpectProblem(SaveCloneFile(Path(name), image).problem, "File Open Error", reason);
    ExpectProblem(SaveCloneFile(QString(), image).problem, "File Open Error", "no file name");
    EXPECT_TRUE(Read(Path("file")) == "old" && FileCount() == 1);
}

TEST_F(FileStore, ANameThatIsTooLongIsFoundOutBeforeAnyWork)
{
    const QString path = Path(std::string(300, 'n').c_str());
    ExpectProblem(ReadingObstacle(path), "File Open Error", "File name too long. Give a shorter name.");
    ExpectProblem(SaveCloneFile(path, StartUpImage(0)).problem, "File Open Error", "Give a shorter name.");
}

TEST_F(FileStore, WhatASaveChangesIsNamed)
{
    CloneImage image = DemoImage(0);
    image.VFOData(3).shiftFrequency = 1060000;
    const SaveOutcome outcome = SaveCloneFile(Path("a.RQ5"), image);
    const std::vector<Message> expected = {"VFO row 3: Shift frequency 1.060000 -> 1.600000"};
    EXPECT_EQ(outcome.changedValues, expected);
    EXPECT_FALSE(outcome.problem);
    EXPECT_EQ(outcome.mark, MarkOf(FormatCloneFile(image)));
}

TEST_F(FileStore, KindsOfFilesAndTheOneThatIsKept)
{
    const CloneImage image = StartUpImage(0);
    Write(Path("clone"), FormatCloneFile(image));
    Write(Path("csv"), FormatCsv(image));
    Write(Path("bare.csv"), "\xEF\xBB\xBFMODEL,BANK\r\n");
    Write(Path("rows.csv"), "\"RQ-M5\",BANK\r\n");
    Write(Path("pdf"), "%PDF-1.4\n");
    Write(Path("contacts.csv"), "Name,Phone\n");
    Write(Path("empty"), "");
    ASSERT_EQ(mkfifo(QFile::encodeName(Path("pipe")).constData(), 0600), 0);
    const std::pair<const char*, FileKind> cases[] = {
        {"none", FileKind::None},          {"empty", FileKind::Empty},
        {"clone", FileKind::Clone},        {"csv", FileKind::Csv},
        {"bare.csv", FileKind::Csv},       {"pdf", FileKind::Pdf},
        {"contacts.csv", FileKind::Other}, {"pipe", FileKind::Other},
        {"rows.csv", FileKind::Csv},
    };
    for (const auto& [name, kind] : cases) {
        EXPECT_EQ(KindOf(Path(name)), kind) << name;
        EXPECT_EQ(OtherKindProblem(Path(name), FileKind::Csv).has_value(),
                  kind == FileKind::Clone || kind == FileKind::Pdf || kind == FileKind::Other)
            << name;
    }
    QString kept;
    ASSERT_TRUE(QFile::link(QStringLiteral("csv"), Path("link")));
    for (const char* name : {"csv", "link"}) {
        Write(Path("csv~"), "an older one");
        EXPECT_FALSE(KeepOldFile(Path(name), kept));
        EXPECT_EQ(kept, Path("csv~"));
        EXPECT_EQ(Read(kept), FormatCsv(image));
        EXPECT_FALSE(WriteWholeFile(Path(name), "new"));
        EXPECT_EQ(Read(kept), FormatCsv(image)) << "it is another file now";
        Write(Path("csv"), FormatCsv(image));
    }
    QDir(folder_.path()).mkdir(QStringLiteral("pdf~"));
    ExpectProblem(KeepOldFile(Path("pdf"), kept), "File Open Error", "nothing was changed");
}

TEST_F(FileStore, AFullDiskLeavesTheOldFile)
{
    Write(Path("a.RQ5"), "old");
    const CloneImage image = StartUpImage(0);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{10000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const SaveOutcome outcome = SaveCloneFile(Path("a.RQ5"), image);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    ExpectProblem(outcome.problem, "File Open Error", "nothing was changed");
    EXPECT_TRUE(Read(Path("a.RQ5")) == "old" && FileCount() == 1);
}

TEST_F(FileStore, ReplacesWhatALinkPointsToAndKeepsThePermissions)
{
    Write(Path("real"), "old");
    constexpr auto kPermissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(Path("real"), kPermissions));
    ASSERT_TRUE(QFile::link(QStringLiteral("real"), Path("link")));
    EXPECT_FALSE(WriteWholeFile(Path("link"), "new"));
    EXPECT_EQ(Read(Path("real")), "new");
    EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
    // Qt tells the owner's permissions for the present user as well.
    EXPECT_EQ(QFile::permissions(Path("real")) | QFileDevice::ReadUser | QFileDevice::WriteUser,
              kPermissions | QFileDevice::ReadUser | QFileDevice::WriteUser);
}

class CommaNumbers : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST_F(FileStore, ADecimalCommaChangesNothing)
{
    const CloneImage image = DemoImage(0);
    const std::string clone = FormatCloneFile(image), csv = FormatCsv(image);
    CloneImage expected, imported;
    ParseCsv(csv, expected);

    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
    // Only this call finds the locale of the tests, so that nothing else of the machine follows it.
    qputenv("LOCPATH", qgetenv("RQM5_TEST_LOCALES"));
    std::setlocale(LC_ALL, "de_DE.UTF-8");  // where it is installed
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_TRUE(FormatCloneFile(image) == clone && FormatCsv(image) == csv);
    ParseCsv(csv, imported);
    QLocale::setDefault(QLocale::c());
    std::locale::global(before);
    std::setlocale(LC_ALL, "C");
    qunsetenv("LOCPATH");
    EXPECT_TRUE(imported == expected);
}

}  // namespace
}  // namespace rqm5
