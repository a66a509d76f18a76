// Writes the inputs that fuzzing starts from: fuzz_seeds FOLDER

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "files/clone_lines.h"
#include "files/csv_file.h"
#include "files/list_file.h"
#include "fuzz/clone_patches.h"
#include "image/channel_block.h"
#include "memory/start_image.h"
#include "settings/settings_codec.h"

namespace rqm5::fuzz {
namespace {

class SeedFolder
{
  public:
    explicit SeedFolder(const std::filesystem::path& path) : path_(path)
    {
        std::filesystem::create_directories(path_);
    }
    void Add(const std::string& bytes)
    {
        std::ofstream(path_ / std::to_string(++count_), std::ios::binary) << bytes;
    }

  private:
    std::filesystem::path path_;
    int count_ = 0;
};

constexpr std::string_view kChannels[] = {
    "01455000000000000000001000600000", "012997500002133F10081C2099999999",
    "00000000000000000000000000000000", "0099FFFF000000000000000000000000",
    "09999999990212480C1C260012050000", "0000100000010A51000000FF00050000"};

CloneImage ImageWithChannels(int model)
{
    CloneImage image = StartUpImage(model);
    int row = 0;
    for (const std::string_view channel : kChannels)
        for (const int first : {0, kProgramScan.rows.first, kSearchPass.rows.first, kPriority.rows.first})
            DecodeMemoryBlock(image, MemoryBlock(channel), first + row++ % 10);
    return image;
}

void AddCloneSeeds(SeedFolder folder)
{
    folder.Add("");
    for (const std::string_view channel : kChannels) {
        folder.Add(PatchBytes(ClonePatch::Fit, kVfoLine, channel));
        folder.Add(PatchBytes(ClonePatch::Fit, kMemoryLine, channel));
    }
    folder.Add(PatchBytes(ClonePatch::Fit, kSettingsLine, "A504FF810C0600000FFFFFFFFF00013209"));
    folder.Add(PatchBytes(ClonePatch::Fit, kEnableLine, "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"));
    folder.Add(PatchBytes(ClonePatch::Fit, kBankLine, "E803FFFF0080640000000000FF7F0100"));
    for (const std::string_view note :
         {"A,B", "\"A,B\"", "\"", "=1+1", "\xE6\x9D\xB1\xE4\xBA\xAC", "\x93\x8C"})
        folder.Add(PatchBytes(ClonePatch::Verbatim, kMemoryNoteLine, note));
    folder.Add(PatchBytes(ClonePatch::Insert, kBankLine, "one line too many"));
    folder.Add(PatchBytes(ClonePatch::Delete, kLinkLine, ""));
    folder.Add(PatchBytes(ClonePatch::CutShort, kMemoryLine, "cut short"));
}

void AddCsvSeeds(SeedFolder folder)
{
    const std::string csv = FormatCsv(ImageWithChannels(0));
    const std::string header = csv.substr(0, csv.find('\n') + 1);
    folder.Add(header);
    // One record of each group: a whole export is far too long to start from.
    for (const char* group :
         {"\"VFO\"", "\"MEMORY\"", "\"PROGRAM SCAN\"", "\"SEARCH PASS\"", "\"PRIORITY\""}) {
        const std::size_t start = csv.rfind('\n', csv.find(group)) + 1;
        folder.Add(header + csv.substr(start, csv.find('\n', start) + 1 - start));
    }
    folder.Add("RQ-M5,memory,5,145.5,am,10KHz,Tone,3,JR,88.5Hz,-shift,0.6,note,TRUE,1\n");
}

void AddListSeeds(SeedFolder folder)
{
    const CloneImage image = ImageWithChannels(0);
    for (const DecimalSign sign : {DecimalSign::Point, DecimalSign::Comma})
        folder.Add(FormatList(image, {{{0, 4}, kPriority.rows}, ListColumns(), sign}));
    for (const char* list : {"145.5\n145,525 MHz\n14\n", "Name\tFreq (kHz)\tMode\nTower\t118100\tAM\n",
                             "Frequenz;Betriebsart;Bemerkung;Aktiv\n145,500;FM;\"Ulm; West\";WAHR\n",
                             "Fr\xE9quence;Nom\n1.299,995;Gen\xE8ve\n", "frecuencia,tono\n439.1,88.5\n",
                             "\xE5\x91\xA8\xE6\xB3\xA2\xE6\x95\xB0,\xE5\x82\x99\xE8\x80\x83\n433.0,x\n",
                             "\x8E\xFC\x94g\x90\x94,\x94\xF5\x8Dl\n433.0,\x93\x8C\x8B\x9E\n",
                             "RQ-M5;MEMORY;3;145,5;FM;10KHz;OFF;0;300Hz;88,5Hz;+Shift;0,6;n;FALSCH;WAHR\n",
                             "ENABLE,MODEL,BANK,CHANNEL,FREQUENCY\n1,RQ-M5,Bank 0,3,1.455E+02\n"})
        folder.Add(list);
    folder.Add(
        std::string("\xFF\xFE"
                    "1\0"
                    "4\0"
                    "5\0"
                    "\t\0"
                    "a\0"
                    "\n\0",
                    14));
}

void AddReplySeeds(SeedFolder folder)
{
    for (const std::string_view channel : kChannels)
        folder.Add("QT~F1000R\r\r\n" + std::string(channel) + "\r\n");
    folder.Add("QT~F1000W" + std::string(kChannels[0]) + "\r\r\nOK\r\n");
    folder.Add("QT~F1000W" + std::string(kChannels[0]) + "\r\r\nNG\r\n");
    folder.Add("\r\nE803FFFF0080640000000000FF7F0100\r\n");
    folder.Add("\r\n1234");
}

void AddSettingsSeeds(SeedFolder folder)
{
    for (int model = 0; model < 6; ++model)
        folder.Add(std::string(1, static_cast<char>(model)) + DefaultSetData1(model).String() +
                   DefaultSetData2().String());
    for (const char* mode : {"0B", "0C", "11", "0F", "10"})
        folder.Add(std::string("\0A503FF81", 9) + mode + "060000FFFFFFFF00013209" +
                   "0000FF00020304FFFFFF3000FFFFFFFF");
}

void AddArgumentSeeds(SeedFolder folder)
{
    for (const char* words :
         {"new\n--region=3\n--force\na.RQ5", "read\n--port\n1\n--only\nmemory\n--bank\n49\na.RQ5",
          "write\n--port=/dev/ttyUSB0\n--\n-a.RQ5", "export\na.RQ5\na.csv", "import\na.csv\na.RQ5",
          "show\na.RQ5\n--bank=search-pass", "print\na.RQ5\n--pdf=a.pdf\n--paper=a4\n--landscape",
          "raw\n1000", "diff\na\nb", "read\n--help"})
        folder.Add(words);
}

}  // namespace
}  // namespace rqm5::fuzz

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: fuzz_seeds FOLDER\n", stderr);
        return 2;
    }
    using namespace rqm5::fuzz;
    const std::filesystem::path folder = argv[1];
    AddCloneSeeds(SeedFolder(folder / "fuzz_clone_file"));
    AddCsvSeeds(SeedFolder(folder / "fuzz_csv"));
    AddListSeeds(SeedFolder(folder / "fuzz_list"));
    AddReplySeeds(SeedFolder(folder / "fuzz_replies"));
    AddSettingsSeeds(SeedFolder(folder / "fuzz_settings"));
    AddArgumentSeeds(SeedFolder(folder / "fuzz_arguments"));
    return 0;
}
