#include "memory/memory_page.h"

#include <QComboBox>
#include <QTableView>

#include "ui/page_test.h"

namespace rqm5 {
namespace {

class MemoryPageTest : public PageTest
{
  protected:
    MemoryPageTest()
    {
        PutChannels({0, 300}, 100);
        page_.resize(900, 600);
        Show(page_);
    }

    QTableView& Table() { return Find<QTableView>(page_, QStringLiteral("MSFlexGrid1")); }
    void GoTo(int tableRow) { Table().setCurrentIndex(Table().model()->index(tableRow - 1, 3)); }
    void ExpectFrequencies(std::initializer_list<std::pair<int, const char*>> rows)
    {
        for (const auto& [row, frequency] : rows)
            EXPECT_EQ(image_.MemText(row, kFrequency), frequency) << row;
    }

    void ExpectWholeRowSelected(int tableRow)
    {
        const QItemSelectionModel& selection = *Table().selectionModel();
        EXPECT_EQ(selection.selectedIndexes().size(), 10);
        EXPECT_TRUE(selection.isRowSelected(tableRow - 1));
        EXPECT_EQ(Table().currentIndex(), Table().model()->index(tableRow - 1, 0));
    }

    MemoryPage page_{document_, dialogs_, nullptr};
};

TEST_F(MemoryPageTest, TheSelectorRefreshesOnChoiceAndFollowsTheBankSizes)
{
    auto& selector = Find<QComboBox>(page_, QStringLiteral("cbbBank"));
    page_.FocusSelector();
    QTest::keyClick(&selector, Qt::Key_Down);
    EXPECT_EQ(Table().model()->rowCount(), 150);
    document_.Absorb([](CloneImage& image) { image.SetBankSize(1, 3); });
    EXPECT_EQ(Table().model()->rowCount(), 3);
}

TEST_F(MemoryPageTest, ARefreshKeepsTheCurrentRowAndSelectsItWhole)
{
    GoTo(150);
    page_.UpDateMemData();
    ExpectWholeRowSelected(150);
    page_.SelectGroup(3);
    ExpectWholeRowSelected(100);  // no more rows than that
    page_.SelectGroup(10);
    EXPECT_EQ(page_.CurrentTableRow(), 0);
    page_.SelectGroup(0);
    ExpectWholeRowSelected(1);
    GoTo(150);
    document_.Replace(StartUpImage(0), {});
    ExpectWholeRowSelected(1);
}

TEST_F(MemoryPageTest, DestructiveOperationsAskFirstAndCancelChangesNothing)
{
    page_.SelectGroup(1);
    GoTo(3);
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"cmbClear", "CLEAR OK", "Clear cannot be undone.\nAre you sure that you want to do the clear?",
         "This clears Bank 1, channel 2, 302.000000 MHz. Edit > Undo brings it back."},
        {"cmbClAll", "CLEAR OK", "Clear cannot be undone.\nAre you sure that you want to clear all memory?",
         "This clears Bank 1, 150 channels. Edit > Undo brings it back."},
        {"cmbDelete", "DELETE OK", "Delete cannot be undone.\nAre you sure that you want to do the delete?",
         "This deletes memory row 2 (Bank 0, channel 2), 102.000000 MHz. Edit > Undo brings it back."},
    };
    const CloneImage before = image_;
    for (const auto& [button, title, text, details] : cases) {
        dialogs_.asked.clear();
        Click(page_, button);
        ASSERT_EQ(dialogs_.asked.size(), 1U);
        const Prompt& asked = dialogs_.asked[0];
        EXPECT_EQ(asked.title, QLatin1String(title));
        EXPECT_EQ(asked.text, QLatin1String(text));
        EXPECT_EQ(asked.details.toStdString(), details);
        EXPECT_EQ(asked.icon, QMessageBox::Warning);
        EXPECT_EQ(asked.buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(asked.defaultButton, QMessageBox::Cancel);
    }
    EXPECT_TRUE(image_ == before && !document_.DataChanged());
}

TEST_F(MemoryPageTest, OperationsActOnTheSelectedRowOrTheGroupShown)
{
    page_.SelectGroup(1);
    GoTo(3);
    Click(page_, "cmbDisable");
    EXPECT_FALSE(image_.MemEnable(202));
    Click(page_, "cmbEnable");
    EXPECT_TRUE(image_.MemEnable(202));
    Click(page_, "cmbDisAll");
    EXPECT_TRUE(image_.MemEnable(199) && !image_.MemEnable(200));
    Click(page_, "cmbEnAll");
    EXPECT_TRUE(image_.MemEnable(299) && !image_.MemEnable(300));  // 300 is empty
    ExpectWholeRowSelected(3);
    dialogs_.answers = {QMessageBox::Ok, QMessageBox::Ok};
    Click(page_, "cmbClear");
    ExpectFrequencies({{202, ""}, {203, "303.000000"}});
    Click(page_, "cmbClAll");
    ExpectFrequencies({{199, "299.000000"}, {200, ""}});
    EXPECT_FALSE(image_.MemEnable(200));
    EXPECT_EQ(Steps(), 6);
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(MemoryPageTest, EveryOperationIsDrawnAtOnceAndOffIsGrey)
{
    QSignalSpy drawn(Table().model(), &QAbstractItemModel::dataChanged);
    const auto colour = [this] {
        return Table().model()->index(0, 0).data(Qt::ForegroundRole).value<QBrush>().color();
    };
    const QPalette palette = QGuiApplication::palette();
    for (const char* button : {"cmbDisable", "cmbEnable", "cmbInsert", "cmbDelete", "cmbClear", "cmbClAll"}) {
        drawn.clear();
        dialogs_.answers = {QMessageBox::Ok};
        Click(page_, button);
        EXPECT_FALSE(drawn.empty()) << button;
        const auto group = image_.MemEnable(0) ? QPalette::Active : QPalette::Disabled;
        EXPECT_EQ(colour(), palette.color(group, QPalette::WindowText)) << button;
    }
}

TEST_F(MemoryPageTest, InsertAndDeleteWorkOnTheFirstTwoHundredRowsByTableRow)
{
    page_.SelectGroup(1);
    GoTo(2);
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Insert);
    ExpectFrequencies({{1, ""}, {2, "101.000000"}, {200, "300.000000"}});
    dialogs_.answers = {QMessageBox::Ok};
    QTest::keyClick(&Table(), Qt::Key_Delete);
    ExpectFrequencies({{1, "101.000000"}, {199, ""}});

    dialogs_.asked.clear();
    page_.SelectGroup(kSelectAll);
    GoTo(201);
    Click(page_, "cmbDelete");
    EXPECT_TRUE(dialogs_.asked.empty());
}

TEST_F(MemoryPageTest, GoesToRowsInTheGroupShownOrTheSmallestThatHoldsThem)
{
    struct
    {
        int shown;
        std::vector<int> rows;
        int selector;
        int tableRow;
    } const cases[] = {
        {kSelectAll, {202}, kSelectAll, 203},
        {1, {202, 203}, 1, 3},
        {0, {202, 203}, 1, 3},
        {0, {199, 200}, kSelectAll, 200},
        {0, {1101}, kSelectSearchPass, 2},
        {1, {}, 1, 1},
    };
    for (const auto& row : cases) {
        page_.SelectGroup(row.shown);
        page_.GoToFirstRow();
        page_.GoToRows(row.rows);
        EXPECT_EQ(page_.Selector(), row.selector) << testing::PrintToString(row.rows);
        EXPECT_EQ(page_.CurrentTableRow(), row.tableRow) << testing::PrintToString(row.rows);
    }
}

TEST_F(MemoryPageTest, EnterAndDoubleClickAskForTheEditor)
{
    QSignalSpy modify(&page_, &MemoryPage::ModifyRequested);
    page_.SelectGroup(kSelectSearchPass);
    GoTo(3);
    QTest::keyClick(&Table(), Qt::Key_Return);
    const QPoint place = Table().visualRect(Table().model()->index(4, 2)).center();
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, place);
    ASSERT_EQ(modify.count(), 2);
    EXPECT_EQ(modify[0][0].toInt(), 1102);
}

}  // namespace
}  // namespace rqm5
