#include <QFile>
#include <QLabel>
#include <QTableView>

#include "app/window_fixture.h"
#include "files/file_store.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

constexpr char kHostileNote[] = "=<b>x</b>\x1B[2J\xE2\x80\xAE";
constexpr char kShownNote[] = "=<b>x</b>\\x1B[2J\\u202E";

TEST_F(WindowTest, AFileFromAStrangerIsShownAndNotObeyed)
{
    CloneImage image = StartUpImage(0);
    image.MemData(0).note = kHostileNote;
    image.MemData(1).note = std::string(100000, 'x');
    image.VFOData(0).note = kHostileNote;
    options_.commandFile = Path("<b>a\n[*].RQ5");
    ASSERT_FALSE(SaveCloneFile(options_.commandFile, image).problem);
    QFile port(options_.portFile);
    ASSERT_TRUE(port.open(QIODevice::WriteOnly));
    port.write("1\r\nCOM1=<b>/dev/tty</b>\r\n");
    port.close();
    Start();

    EXPECT_TRUE(window_->windowTitle().startsWith(QStringLiteral("<b>a\\n[*][*].RQ5 - ")));
    const QAbstractItemModel& memory = *Find<QTableView>("MSFlexGrid1").model();
    const auto note = [](const QAbstractItemModel& model, int row) {
        return model.index(row, model.columnCount() - 1).data().toString();
    };
    EXPECT_EQ(note(memory, 0), QString::fromUtf8(kShownNote));
    EXPECT_LT(note(memory, 1).size(), 1000);
    for (const QLabel* label : window_->findChildren<QLabel*>()) {
        // A link of the program's own, which never shows what a file holds.
        if (label->objectName() == QLatin1String("lblNoteDetails"))
            continue;
        const bool obeysMarkup = label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text());
        EXPECT_FALSE(obeysMarkup) << label->text().toStdString();
    }

    dialogs_.files = {Path("a.csv")};
    Item("mnuFileExport").trigger();
    ASSERT_EQ(dialogs_.asked.size(), 1U);
    EXPECT_TRUE(dialogs_.asked[0].text.contains(QStringLiteral("formulas")));
    EXPECT_TRUE(dialogs_.asked[0].details.contains(QStringLiteral("memory row 0")));
}

}  // namespace
}  // namespace rqm5
