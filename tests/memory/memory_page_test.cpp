#include "memory/memory_page.h"

#include <QComboBox>
#include <QTableView>
#include <tuple>

#include "ui/page_test.h"

namespace rqm5 {
namespace {

class MemoryPageTest : public PageTest
{
  protected:
    MemoryPageTest()
    {
        for (int row = 0; row < 300; ++row)
            PutChannel(row, 100 + row);
        page_.UpDateMemData();
        page_.resize(900, 600);
        Show(page_);
    }

    QTableView& Table() { return Find<QTableView>(page_, QStringLiteral("MSFlexGrid1")); }
    void GoTo(int tableRow) { Table().setCurrentIndex(Table().model()->index(tableRow - 1, 3)); }
    void ExpectFrequencies(std::initializer_list<std::pair<std::size_t, const char*>> rows)
    {
        for (const auto& [row, frequency] : rows)
            EXPECT_EQ(image_.MemText[row][kFrequency], frequency) << row;
    }
    bool IsOn(std::size_t row) { return image_.MemEnable[row]; }

    void ExpectWholeRowSelected(int tableRow)
    {
        const QItemSelectionModel& selection = *Table().selectionModel();
        EXPECT_EQ(selection.selectedIndexes().size(), 10);
        EXPECT_TRUE(selection.isRowSelected(tableRow - 1));
        EXPECT_EQ(Table().currentIndex(), Table().model()->index(tableRow - 1, 0));
    }

    MemoryPage page_{image_, dialogs_, nullptr};
    QSignalSpy edited_{&page_, &MemoryPage::Edited};
};

TEST_F(MemoryPageTest, TheSelectorRefreshesOnChoiceAndWhenItIsLeft)
{
    auto& selector = Find<QComboBox>(page_, QStringLiteral("cbbBank"));
    page_.FocusSelector();
    QTest::keyClick(&selector, Qt::Key_Down);
    EXPECT_EQ(Table().model()->rowCount(), 150);
    SetBankSize(image_, 1, 3);
    QTest::keyClick(&selector, Qt::Key_Tab);
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
}

TEST_F(MemoryPageTest, DestructiveOperationsAskFirstAndCancelChangesNothing)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"cmbClear", "CLEAR OK", "Clear cannot be undone.\nAre you sure that you want to do the clear?"},
        {"cmbClAll", "CLEAR OK", "Clear cannot be undone.\nAre you sure that you want to clear all memory?"},
        {"cmbDelete", "DELETE OK", "Delete cannot be undone.\nAre you sure that you want to do the delete?"},
    };
    const CloneImage before = image_;
    for (const auto& [button, title, text] : cases) {
        dialogs_.asked.clear();
        Click(page_, button);
        ASSERT_EQ(dialogs_.asked.size(), 1U);
        const Prompt& asked = dialogs_.asked[0];
        EXPECT_EQ(asked.title, QLatin1String(title));
        EXPECT_EQ(asked.text, QLatin1String(text));
        EXPECT_EQ(asked.icon, QMessageBox::Warning);
        EXPECT_EQ(asked.buttons, QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(asked.defaultButton, QMessageBox::Cancel);
    }
    EXPECT_TRUE(SameContents(image_, before) && edited_.empty() && !image_.DataChanged);
}

TEST_F(MemoryPageTest, OperationsActOnTheSelectedRowOrTheGroupShown)
{
    page_.SelectGroup(1);
    GoTo(3);
    Click(page_, "cmbDisable");
    EXPECT_FALSE(IsOn(202));
    Click(page_, "cmbEnable");
    EXPECT_TRUE(IsOn(202));
    Click(page_, "cmbDisAll");
    EXPECT_TRUE(IsOn(199) && !IsOn(200));
    Click(page_, "cmbEnAll");
    EXPECT_TRUE(IsOn(299) && !IsOn(300));  // 300 is empty
    ExpectWholeRowSelected(3);
    dialogs_.answers = {QMessageBox::Ok, QMessageBox::Ok};
    Click(page_, "cmbClear");
    ExpectFrequencies({{202, ""}, {203, "303.000000"}});
    Click(page_, "cmbClAll");
    ExpectFrequencies({{199, "299.000000"}, {200, ""}});
    EXPECT_FALSE(IsOn(200));
    EXPECT_EQ(edited_.count(), 6);
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
