#include "files/csv_file.h"

#include <gtest/gtest.h>

#include <tuple>

#include "image/channel_block.h"
#include "image/row_texts.h"
#include "language/english.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"

namespace rqm5 {
namespace {

using Texts = std::vector<std::string>;

/// A record with one of its ten texts replaced.
std::string Record(const std::string& keys, Column column, const std::string& text,
                   const std::string& skip = "#FALSE#")
{
    Texts texts = {"145.5", "FM", "5KHz", "OFF", "0", "300Hz", "67.0Hz", "OFF", "0.6", "note"};
    texts[column] = text;
    std::string record = keys;
    for (const std::string& field : texts)
        record += field + ",";
    return record + skip + ",#TRUE#\r\n";
}

std::string LineAt(const std::string& text, int line)
{
    std::size_t first = 0;
    for (; line > 0; --line)
        first = text.find("\r\n", first) + 2;
    return text.substr(first, text.find("\r\n", first) - first);
}

TEST(Csv, ExportWritesTheStoredTexts)
{
    CloneImage image = StartUpImage(2);
    DecodeMemoryBlock(image, MemoryBlock("01455000000001180400001000600000"), 0);
    image.MemData(0).enabled = true;
    image.MemData(0).note = "a, \"b\"";
    const std::string empty = R"(,"","","","","","","","","","","#FALSE#",#FALSE#)";
    const std::pair<int, std::string> expected[] = {
        {0, R"("MODEL","BANK","CHANNEL","FREQUENCY","MODE","STEP","OPTION","SECRET","TRAIN","TONE","SHIFT",)"
            R"("SHIFT FREQUENCY","NOTES","SKIP","ENABLE")"},
        {1, R"("RQ-M5","VFO","0","0.100000","AM","1KHz","OFF","8","JR","88.5Hz","OFF","0.250000","",)"
            R"("#FALSE#","#TRUE#")"},
        {15, R"("RQ-M5","MEMORY","0","145.500000","FM","5KHz","Scrt","4","300Hz","67.0Hz","+Shift",)"
             R"("0.600000","a, ""b""","#TRUE#",#TRUE#)"},
        {1015, R"("RQ-M5","PROGRAM SCAN","P0A")" + empty},
        {1114, R"("RQ-M5","PROGRAM SCAN","P49B")" + empty},
        {1214, R"("RQ-M5","SEARCH PASS","99")" + empty},
        {1224, R"("RQ-M5","PRIORITY","9")" + empty},
        {1225, ""},
    };
    for (const auto& [line, text] : expected)
        EXPECT_EQ(LineAt(FormatCsv(image), line), text) << line;
}

TEST(Csv, AnExportImportsAgain)
{
    const CloneImage image = DemoImage(1);
    CloneImage imported;
    const CsvTaken taken = ParseCsv(FormatCsv(image), imported);
    EXPECT_EQ(taken.rows, 1224);
    int moved = 0;
    for (int row = 0; row < kRadioRows; ++row)
        moved += imported.MemData(row).carrier == image.MemData(row).carrier + 1 ? 1 : 0;
    EXPECT_TRUE(moved > 0 && taken.movedCarriers == moved) << "3000Hz, JR and empty rows stay";
    for (int row = 0; row < kRadioRows; ++row) {
        EXPECT_EQ(imported.MemEnable(row), image.MemEnable(row)) << row;
        EXPECT_EQ(imported.MemText(row, kFrequency), image.MemText(row, kFrequency)) << row;
    }
}

TEST(Csv, ImportFindsTheRowOfARecord)
{
    constexpr int kPassedOver = -1;
    const std::pair<const char*, int> cases[] = {
        // clang-format off
        {"RQ-M5,MEMORY,999,", 999}, {"RQ-M5,memory, 12 ,", 12}, {"RQ-M5,MEMORY,1000,", -1}, {"RQ-M5,MEMORY,-1,", -1},
        {"RQ-M5,MEMORY,,", -1}, {"RQ-M5,MEMORY,x,", -1}, {"RQ-M5,MEMORY,7.5,", -1}, {"RQ-M5,MEMORY,99999999999,", -1}, {"RQ-M5,BANK,1,", -1},
        {"RQ-M6,MEMORY,1,", -1}, {"rq-m5,MEMORY,1,", -1}, {"RQ-M5,PROGRAM SCAN,P0A,", 1000},
        {"RQ-M5,PROGRAM SCAN,49b,", 1099}, {"RQ-M5,PROGRAM SCAN,P50A,", -1}, {"RQ-M5,PROGRAM SCAN,0,", -1},
        {"RQ-M5,SEARCH PASS,0,", 1100}, {"RQ-M5,SEARCH PASS,S99,", 1199}, {"RQ-M5,SEARCH PASS,100,", -1},
        {"RQ-M5,PRIORITY,9,", 1209}, {"RQ-M5,PRIORITY,Pr3,", 1203}, {"RQ-M5,PRIORITY,10,", -1}, {"RQ-M5,VFO,14,", -1},
        {"RQ-M5,x,\"RQ-M5\",\"MEMORY\",\"5\",", 5},
        {"\"open,\nRQ-M5,MEMORY,1,", 1},  // a quote that nothing closes does not swallow the rest
        // clang-format on
    };
    for (const auto& [keys, row] : cases) {
        CloneImage image;
        EXPECT_EQ(ParseCsv(Record(keys, kNote, ""), image).rows, row == kPassedOver ? 0 : 1) << keys;
        if (row != kPassedOver)
            ClearMemoryRow(image, row);
        EXPECT_TRUE(image == CloneImage()) << keys;
    }
}

TEST(Csv, ImportTurnsTextsBackOrKeepsWhatTheRowHad)
{
    // The row before: 433.25 MHz, WFM, 8MHz, Tone + skip, code 5, code 7, tone 9, minus, 7.6 MHz.
    const std::tuple<Column, const char*, double, const char*> cases[] = {
        // clang-format off
        {kFrequency, "10000", 433.25, "433.250000"}, {kFrequency, "9999.9999999", 433.25, "433.250000"},
        {kFrequency, "-1", 433.25, "433.250000"}, {kFrequency, "88.3000004", 88.3, "88.300000"},
        {kMode, "fm", 2, "WFM"}, {kMode, "AM", 1, "AM"}, {kStep, "200KHz", 13, "200KHz"},
        {kStep, "1KHz", 19, "1KHz"}, {kStep, "6MHz", 18, "8MHz"}, {kOption, "SCRT", 16, "Scrt"},
        {kOption, "Scrt", 16, "Scrt"}, {kOption, "None", 48, "Tone"}, {kSecret, "17", 5, "5"},
        {kSecret, "16", 16, "16"}, {kCarrier, "300Hz", 1, "300Hz"}, {kCarrier, "200Hz", 0, "200Hz"},
        {kCarrier, "2999Hz", 27, "2900Hz"}, {kCarrier, "3000Hz", 7, "900Hz"},
        {kCarrier, "99999999999999", 7, "900Hz"}, {kCarrier, "JR", 28, "JR"}, {kTone, "250.3", 38, "250.3Hz"},
        {kTone, "159.8Hz", 9, "91.5Hz"}, {kShift, "+SHIFT", 16, "+Shift"}, {kShift, "minus", 0, "OFF"},
        {kShiftFrequency, "99.9999999", 7.6, "7.600000"}, {kShiftFrequency, "0.05", 0.05, "0.050000"},
        // clang-format on
    };
    for (const auto& [column, text, number, shown] : cases) {
        CloneImage image;
        DecodeMemoryBlock(image, MemoryBlock("04332500000212380507092007600000"), 3);
        ASSERT_EQ(ParseCsv(Record("RQ-M5,MEMORY,3,", column, text), image).rows, 1);
        EXPECT_EQ(NumberOf(image.MemData(3), column), number) << text;
        EXPECT_EQ(image.MemText(3, column), shown) << text;
    }
}

TEST(Csv, ImportKnowsSeveralFormsOfTrue)
{
    for (const char* skip : {"#TRUE#", "\"#True#\"", "true", "1", "-1", "Yes", "WAHR", "vrai", "VERDADERO",
                             "vero", "#FALSE#", "0", "", "FALSCH", "faux", "FALSO", "#NAME?"}) {
        const bool isFalse =
            std::string_view("#FALSE#0FALSCHfauxFALSO#NAME?").find(skip) != std::string_view::npos;
        CloneImage image;
        const CsvTaken taken = ParseCsv(Record("RQ-M5,MEMORY,3,", kOption, "Tone", skip), image);
        EXPECT_EQ(image.MemData(3).option, isFalse ? 48 : 56) << skip;
        EXPECT_TRUE(image.MemEnable(3));
        EXPECT_EQ(taken.findings.IsEmpty(), std::string_view(skip) != "#NAME?") << skip;
    }
}

TEST(Csv, ImportNamesWhatItReadsOtherwise)
{
    // The row before: 433.25 MHz, WFM, 8MHz, Tone + skip, code 5, code 7, tone 9, minus, 7.6 MHz.
    const std::tuple<Column, const char*, const char*> cases[] = {
        {kFrequency, "\"145,500\"", "FREQUENCY \"145,500\" is read as 145: it has a decimal comma"},
        {kFrequency, "1.455E+02", "FREQUENCY \"1.455E+02\" is read as 1.455"},
        {kFrequency, "2400", "2400.000000 MHz is outside the receiver's range (0.1 to 1299.995 MHz)"},
        {kFrequency, "10000", "FREQUENCY \"10000\" is out of range; the row keeps 433.250000"},
        {kFrequency, "x", "FREQUENCY \"x\" is no number"},
        {kMode, "NFM", "MODE \"NFM\" is none of the receiver's; the row keeps WFM"},
        {kMode, "", "MODE is empty; the row keeps WFM"},
        {kTone, "88.4Hz", "TONE \"88.4Hz\" is none of the receiver's; the row keeps 91.5Hz"},
        {kShift, "minus", "SHIFT \"minus\" is read as OFF"},
        {kMode, "AM", ""},
        {kFrequency, "145.5 MHz", ""},
        {kFrequency, "", ""},
    };
    for (const auto& [column, text, finding] : cases) {
        CloneImage image;
        DecodeMemoryBlock(image, MemoryBlock("04332500000212380507092007600000"), 3);
        const CsvFindings findings = ParseCsv(Record("RQ-M5,MEMORY,3,", column, text), image).findings;
        EXPECT_EQ(findings.IsEmpty(), *finding == '\0') << text;
        if (!findings.IsEmpty()) {
            EXPECT_EQ(findings.Lines().front().English(),
                      "Line 1: memory row 3 (in no bank): " + std::string(finding));
        }
    }
    CloneImage image;
    const std::string lines = "RQ-M6,a\r\nRQ-M5,BANK,1\r\nRQ-M5,MEMORY,1000\r\n" +
                              Record("RQ-M5,MEMORY,3,", kNote, "a,b") + "RQ-M5,MEMORY,4,145.5,FM\r\n" +
                              Record("RQ-M5,MEMORY,5,", kNote, "") + "RQ-M5,MEMORY,6,";
    std::string told;
    for (const CsvFinding& finding : ParseCsv(lines, image).findings.all)
        if (const std::string text = finding.text.English();
            text.find("passed over") != std::string::npos || text.find("short") != std::string::npos)
            told += std::to_string(finding.line) + text.substr(text.size() - 7) + "|";
    EXPECT_EQ(told, "1ed over|2ed over|3ed over|4ed over|5into it|7ed over|");

    CloneImage commas;
    const CsvTaken taken =
        ParseCsv(Record("RQ-M5,MEMORY,3,", kFrequency, "\"145,5\""), commas, CsvNumbers::DecimalCommas);
    EXPECT_TRUE(taken.findings.IsEmpty() && commas.MemText(3, kFrequency) == "145.500000");
}

TEST(Csv, AFileIsOursByItsTitlesOrItsModel)
{
    const std::string titles = FormatCsv(CloneImage()).substr(0, 130);
    const std::pair<std::string, bool> cases[] = {
        {FormatCsv(CloneImage()), true},
        {"\xEF\xBB\xBF\r\n" + Record("RQ-M5,MEMORY,3,", kMode, "AM"), true},
        {"BANK,MODEL" + titles.substr(titles.find(",\"CHANNEL")), false},
        {"Frequency\n145.5\nRQ-M5,MEMORY\n", false},
        {"\"RQ-M5\";\"MEMORY\";\"3\"\r\n", false},
        {"", false},
    };
    for (const auto& [text, isOurs] : cases)
        EXPECT_EQ(IsOwnCsv(text), isOurs) << text.substr(0, 60);
}

TEST(Csv, VfoRowsHaveTheirOwnOptionTextAndRowsWithoutFrequencyAreEmptied)
{
    CloneImage image = DemoImage(1);
    image.MemData(13).enabled = false;
    EXPECT_EQ(ParseCsv(Record("RQ-M5,VFO,13,", kOption, "Scrt"), image).rows, 1);
    EXPECT_EQ(image.VFOText(13, kOption) + image.VFOText(13, kNote), "SCRTnote");
    EXPECT_EQ(image.VFOData(13).option, 16);
    EXPECT_FALSE(image.MemEnable(13) || image.VFOData(13).enabled);

    EXPECT_EQ(ParseCsv(Record("RQ-M5,MEMORY,7,", kFrequency, ""), image).rows, 1);
    EXPECT_EQ(EncodeMemoryRow(image, 7).Text(), std::string(32, '0'));
    EXPECT_EQ(TextsOf(image.MemData(7)), (Texts{"", "", "", "", "", "", "", "", "", "note"}));
    EXPECT_TRUE(image.MemEnable(7));
}

TEST(Csv, NotesComeInAsOneLine)
{
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"\"two\r\nlines, \"\"quoted\"\"\"", "two lines, \"quoted\""}, {"  as it stands ", "  as it stands "},
        {"\"\tx\x01\x7F\"", " x  "}, {"say \"hi\"", "say \"hi\""}, {"\x93\x8C\x8B\x9E", "\xE6\x9D\xB1\xE4\xBA\xAC"},
        {"Z\xFCrich", "Zürich"},
        // clang-format on
    };
    for (const auto& [field, note] : cases) {
        CloneImage image;
        ASSERT_EQ(ParseCsv(Record("RQ-M5,MEMORY,0,", kNote, field), image).rows, 1) << field;
        EXPECT_EQ(image.MemText(0, kNote), note);
    }
}

TEST(Csv, WhatIsNoRecordChangesNothing)
{
    const CloneImage before = DemoImage(3);
    const std::string record = Record("RQ-M5,MEMORY,0,", kNote, "cut");
    const std::string cut = record.substr(0, record.rfind(','));
    const std::string header = LineAt(FormatCsv(before), 0);
    const std::string texts[] = {"", "\"", "\xEF\xBB\xBF", header, "RQ-M5,MEMORY", cut};
    for (const std::string& text : texts) {
        CloneImage image = before;
        EXPECT_EQ(ParseCsv(text, image).rows, 0) << text;
        EXPECT_TRUE(image == before) << text;
    }
}

TEST(Csv, NamesTheNotesThatASpreadsheetWouldRun)
{
    CloneImage image = StartUpImage(0);
    image.VFOData(13).note = "=1+1";
    for (int row = 0;
         const char* note : {"+1", "-1", "@x", "\tx", "\rx", "＝1", "＋1", "－1", "＠x", " =1", "1=1"})
        image.MemData(row++).note = note;
    image.MemData(1209).note = image.MemData(1210).note = "=";  // no CSV holds the second
    const Texts names = English(NotesThatLookLikeFormulas(image));
    ASSERT_EQ(names.size(), 11U);
    EXPECT_EQ(names.front() + ", " + names.back(), "VFO row 13, memory row 1209 (Priority Pr9)");
}

}  // namespace
}  // namespace rqm5
