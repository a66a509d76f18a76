#include <QAccessible>
#include <QFile>
#include <QImage>
#include <QTableView>
#include <QWheelEvent>

#include "app/receiver_window_fixture.h"
#include "memory/memory_page.h"
#include "spectrum/spectrum_view.h"

namespace rqm5 {
namespace {

class SpectrumWindow : public ReceiverWindowTest
{
  protected:
    SpectrumWindow()
    {
        Item("mnuReAll").trigger();
        window_->resize(1100, 900);
        Item("mnuViewSpectrum").trigger();
        QCoreApplication::processEvents();
    }

    SpectrumView& View() { return Find<SpectrumView>("picSpectrum"); }
    std::vector<int> Selected() { return Find<MemoryPage>("").SelectedRows(); }
    int RowOf(int mark) { return View().Picture().marks.at(static_cast<std::size_t>(mark)).row; }
    void ClickMark(int mark)
    {
        QTest::mouseClick(&View(), Qt::LeftButton, {}, View().PlaceOfMark(mark).center());
    }
};

TEST_F(SpectrumWindow, AClickSelectsTheRowAndTheSelectionIsMarked)
{
    GoTo(Tab::Settings1);
    const int last = static_cast<int>(View().Picture().marks.size()) - 1;
    View().ScrollTo(View().HighestScroll());
    ClickMark(last);
    EXPECT_EQ(Selected(), std::vector{RowOf(last)});
    EXPECT_EQ(Tabs().currentIndex(), static_cast<int>(Tab::Memory));
    EXPECT_TRUE(View().IsSelected(last));
    EXPECT_FALSE(View().IsSelected(0));
    EXPECT_EQ(StatusText("lblSpectrumChannel"), View().NameOfMark(last));
    Find<MemoryPage>("").GoToRow(RowOf(0));
    EXPECT_TRUE(View().IsSelected(0)) << "the table leads, too";

    // Not while a group is read, and what is edited shows.
    At(1200, [&] { View().Choose(last); });
    Item("mnuReAll").trigger();
    EXPECT_NE(Selected(), std::vector{RowOf(last)});
    dialogs_.answers = {QMessageBox::No};
    Item("mnuFileNew").trigger();
    EXPECT_TRUE(View().Picture().marks.empty());
}

TEST_F(SpectrumWindow, MovesByWheelDragDoubleClickAndKeys)
{
    const QPoint middle = View().rect().center();
    const auto wheel = [&](QPoint at, int notches) {
        QWheelEvent event(at, View().mapToGlobal(at), {}, {0, 120 * notches}, {}, {}, {}, false);
        QCoreApplication::sendEvent(&View(), &event);
    };
    const QPoint beside = View().PlaceOfMark(0).center() + QPoint(3, 0);
    QTest::mouseMove(&View(), beside);
    EXPECT_FALSE(StatusText("lblSpectrumChannel").isEmpty());
    wheel(beside, 60);
    EXPECT_TRUE(StatusText("lblSpectrumChannel").isEmpty()) << "it is no longer under the pointer";
    View().ShowAll();
    wheel(middle, 8);
    const SpectrumAxis nearer = View().Axis();
    EXPECT_LT(nearer.High() / nearer.Low(), 100);
    QTest::mousePress(&View(), Qt::LeftButton, {}, middle);
    QTest::mouseMove(&View(), middle + QPoint(100, 0));
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, middle + QPoint(100, 0));
    EXPECT_LT(View().Axis().Low(), nearer.Low());
    QTest::keyClick(&View(), Qt::Key_Home);
    EXPECT_TRUE(View().Axis().IsWhole());
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, {View().width() - 20, 3});
    EXPECT_NEAR(View().Axis().Low(), 960e6, 1) << "the last band";

    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_EQ(View().Current(), 0);
    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_EQ(View().Current(), 1);
    EXPECT_FALSE(View().PlaceOfMark(1).isEmpty()) << "it comes into sight";
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(Selected(), std::vector{RowOf(1)});
}

TEST_F(SpectrumWindow, NamesEachChannelToAScreenReader)
{
    QAccessibleInterface* spectrum = QAccessible::queryAccessibleInterface(&View());
    ASSERT_NE(spectrum, nullptr);
    ASSERT_EQ(spectrum->childCount(), static_cast<int>(View().Picture().marks.size()));
    QAccessibleInterface* second = spectrum->child(1);
    EXPECT_EQ(second->text(QAccessible::Name), View().NameOfMark(1));
    EXPECT_TRUE(View().NameOfMark(1).contains(QStringLiteral(" MHz, "))) << qPrintable(View().NameOfMark(1));
    EXPECT_EQ(spectrum->indexOfChild(second), 1);
    EXPECT_EQ(spectrum->childAt(second->rect().center().x(), second->rect().center().y())->role(),
              QAccessible::ListItem);
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(second->state().selected);
    dialogs_.answers = {QMessageBox::No};
    Item("mnuFileNew").trigger();
    EXPECT_FALSE(second->isValid());
}

TEST_F(SpectrumWindow, SavesThePictureAsPngOrSvg)
{
    for (const char* name : {"a.png", "a.svg"}) {
        dialogs_.files = {Path(name)};
        Click("cmbSpectrumSave");
        EXPECT_EQ(dialogs_.choices.back(), FileChoice::SavePicture);
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const QByteArray bytes = file.readAll();
        if (bytes.startsWith("<?xml"))
            EXPECT_TRUE(bytes.contains("145.5 MHz") || bytes.contains("100 MHz"));
        else
            EXPECT_GE(QImage::fromData(bytes).width(), 3000);
    }
    dialogs_.files = {Path("no/such/folder.png")};
    Click("cmbSpectrumSave");
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_EQ(dialogs_.asked[0].text, QStringLiteral("File Open Error"));
}

}  // namespace
}  // namespace rqm5
