#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <fstream>
#include <iterator>

#include "app/window_fixture.h"
#include "files/clone_file.h"
#include "files/file_store.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

class ListWindowTest : public WindowTest
{
  protected:
    void Import(const std::string& text)
    {
        std::ofstream(Path("in.csv").toStdString(), std::ios::binary) << text;
        dialogs_.files = {Path("in.csv")};
        Item("mnuFileImport").trigger();
    }

    /// The frequencies of the first rows, as a list of this program.
    std::string Frequencies()
    {
        std::string text;
        dialogs_.act = [](QDialog& dialog) {
            auto& columns = *dialog.findChild<QListWidget*>(QStringLiteral("lstExportColumns"));
            for (int i = 0; i < columns.count(); ++i)
                columns.item(i)->setCheckState(i < 3 ? Qt::Checked : Qt::Unchecked);
            dialog.findChild<QComboBox*>(QStringLiteral("cbbExportDecimal"))->setCurrentIndex(0);
            auto& ok = *dialog.findChild<QPushButton*>(QStringLiteral("OKButton"));
            if (ok.isEnabled())
                ok.click();
        };
        dialogs_.files = {Path("out.csv")};
        Item("mnuFileExportList").trigger();
        std::ifstream file(Path("out.csv").toStdString(), std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(file), {});
        QFile::remove(Path("out.csv"));
        return text;
    }

    template <class Control>
    static Control& In(QDialog& dialog, const char* name)
    {
        return *dialog.findChild<Control*>(QLatin1String(name));
    }

    static void Choose(QComboBox& box, int index)
    {
        box.setCurrentIndex(index);
        emit box.activated(index);
        QCoreApplication::processEvents();
    }
};

TEST_F(ListWindowTest, AListIsShownAssignedAndImportedAsOneStep)
{
    Start();
    dialogs_.act = [](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("dlgImport"));
        auto& ok = In<QPushButton>(dialog, "OKButton");
        EXPECT_FALSE(ok.isEnabled()) << "there is no frequency yet";
        auto& assigned = In<QComboBox>(dialog, "cbbImportColumn_1");
        Choose(assigned, assigned.findData(QStringLiteral("frequency:kHz")));
        EXPECT_TRUE(ok.isEnabled());
        EXPECT_TRUE(
            In<QComboBox>(dialog, "cbbImportDelimiter").itemText(0).contains(QStringLiteral("Semicolon")));
        auto& mapping = In<QComboBox>(dialog, "cbbImportMapping");
        mapping.setEditText(QStringLiteral("my/list"));
        In<QPushButton>(dialog, "cmbImportKeep").click();
        ok.click();
    };
    const std::string list = "Ort;Sonst\nUlm;145500\nOst;2400000\nBonn;433500,5\n";
    Import(list);
    EXPECT_TRUE(StatusText("lblHint").contains(QStringLiteral("written: 2; refused: 1")))
        << StatusText("lblHint").toStdString();
    EXPECT_EQ(Item("mnuHistoryUndo").text(), QStringLiteral("&Undo Import (in.csv)"));
    EXPECT_FALSE(window_->windowTitle().contains(QStringLiteral("in.csv")))
        << "a list is not the current file";
    EXPECT_EQ(Frequencies(),
              "\xEF\xBB\xBF"
              "Bank,Channel,Frequency (MHz)\r\nBank 0,0,145.500000\r\nBank 0,1,433.500500\r\n");
    EXPECT_EQ(StatusText("lblFileState"), QStringLiteral("Changed")) << "nor is a list that was written";
    Item("mnuHistoryUndo").trigger();
    EXPECT_EQ(Frequencies(), "");

    // The mapping was kept under its name, and reads another list; a row that the list names is the target.
    dialogs_.act = [](QDialog& dialog) {
        auto& mapping = In<QComboBox>(dialog, "cbbImportMapping");
        Choose(mapping, mapping.findText(QStringLiteral("my/list")));
        auto& assigned = In<QComboBox>(dialog, "cbbImportColumn_2");
        Choose(assigned, assigned.findData(QStringLiteral("row")));
        EXPECT_TRUE(In<QAbstractButton>(dialog, "opbImportNamed").isChecked());
        In<QPushButton>(dialog, "OKButton").click();
    };
    Import("Ort;Sonst;Wo\nUlm;145500;201\n");
    EXPECT_TRUE(Frequencies().ends_with("Bank 1,1,145.500000\r\n"));
}

TEST_F(ListWindowTest, AnImportThatReadSomethingOtherwiseSaysSoAndCanReadAgain)
{
    const std::string record =
        "\"RQ-M5\",\"MEMORY\",\"3\",\"145,500\",\"FM\",\"10KHz\",\"OFF\",\"0\",\"JR\","
        "\"88.5Hz\",\"OFF\",\"0.6\",\"\",\"#FALSE#\",#TRUE#\r\n";
    Start();
    Import(record);
    EXPECT_TRUE(dialogs_.asked.empty() && dialogs_.runs == 0) << "no box";
    auto& link = Find<QLabel>("lblNoteDetails");
    EXPECT_TRUE(link.isVisible() &&
                StatusText("lblHint").contains(QStringLiteral("1 number has a decimal comma")));
    dialogs_.act = [](QDialog& dialog) {
        EXPECT_TRUE(
            In<QPlainTextEdit>(dialog, "txtDetails").toPlainText().startsWith(QStringLiteral("Line 1: ")));
        In<QPushButton>(dialog, "cmbReadCommas").click();
    };
    QTest::mouseClick(&link, Qt::LeftButton, {}, link.rect().center());
    EXPECT_EQ(dialogs_.runs, 1);
    EXPECT_FALSE(link.isVisible());
    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("in.csv - ")));
    EXPECT_TRUE(Frequencies().ends_with(",145.500000\r\n"));
    Item("mnuHistoryUndo").trigger();
    EXPECT_EQ(Frequencies(), "") << "both readings were one import";
}

}  // namespace
}  // namespace rqm5
