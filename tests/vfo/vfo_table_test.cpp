#include "vfo/vfo_table.h"

#include "ui/page_test.h"

namespace rqm5 {
namespace {

class VfoTableTest : public PageTest
{
  protected:
    VfoTable table_{image_, nullptr};
};

TEST_F(VfoTableTest, ShowsTheCellsOfTheRegionAndTheTitles)
{
    const auto cell = [this](int row, int column) {
        return table_.model()->index(row, column).data().toString().toStdString();
    };
    image_.Settings.model = 2;
    table_.UpdateVFOData();
    ASSERT_EQ(table_.model()->rowCount(), 14);
    EXPECT_EQ(cell(7, 2), image_.VFOText[7][kStep]);
    EXPECT_EQ(cell(7, 4), "-");
    EXPECT_EQ(cell(8, 0), "-");
    EXPECT_EQ(table_.model()->headerData(4, Qt::Horizontal).toString(), QStringLiteral("Scrt"));
    EXPECT_EQ(table_.model()->headerData(13, Qt::Vertical).toString(), QStringLiteral("13"));
}

TEST_F(VfoTableTest, ARefreshKeepsTheSelectedRowAndEnterChoosesIt)
{
    QSignalSpy chosen(&table_, &VfoTable::RowChosen);
    EXPECT_EQ(table_.CurrentTableRow(), 1);
    QTest::keyClick(&table_, Qt::Key_Down);
    table_.UpdateVFOData();
    EXPECT_EQ(table_.CurrentTableRow(), 2);
    EXPECT_EQ(table_.selectionModel()->selectedIndexes().size(), 10);
    QTest::keyClick(&table_, Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toInt(), 2);
}

}  // namespace
}  // namespace rqm5
