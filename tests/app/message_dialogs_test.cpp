#include "ui/message_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "ui/error_prompt.h"

namespace rqm5 {
namespace {

/// Acts on the modal dialog that comes up next.
template <typename Dialog>
void WhenShown(const std::function<void(Dialog&)>& act)
{
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

TEST(MessageDialogs, TakeTextsOfStrangersAsPlainText)
{
    const std::string evil = "<b>/dev/tty</b>\n<img src='x'>";
    WhenShown<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("ERROR"));
        EXPECT_EQ(box.text(), QStringLiteral("COM Port Error"));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.informativeText().toStdString(), evil);
        for (const QLabel* label : box.findChildren<QLabel*>())
            EXPECT_TRUE(label->text().toStdString() != evil || label->textFormat() == Qt::PlainText);
    });
    MessageDialogs().Ask(nullptr, ErrorPrompt({kComPortError, evil}));
}

TEST(MessageDialogs, CopyTheCommandThatTheyAdvise)
{
    const auto press = [](const Problem& problem) {
        WhenShown<QMessageBox>([&](QMessageBox& box) {
            auto* copy = box.findChild<QPushButton*>(QStringLiteral("cmbCopyCommand"));
            ASSERT_EQ(copy != nullptr, !problem.command.empty());
            QTest::mouseClick(copy != nullptr ? copy : box.button(QMessageBox::Ok), Qt::LeftButton);
        });
        EXPECT_EQ(MessageDialogs().Ask(nullptr, ErrorPrompt(problem)), QMessageBox::Ok);
        return QApplication::clipboard()->text();
    };
    QApplication::clipboard()->clear();
    EXPECT_EQ(press({kComPortError, "no such device"}), QString());
    EXPECT_EQ(press({.text = kComPortError, .details = "denied", .command = "sudo usermod"}),
              QStringLiteral("sudo usermod"));
}

TEST(MessageDialogs, HaveTheDefaultButtonAndTheCaptionsThatAreWanted)
{
    Prompt prompt{.title = QStringLiteral("T"), .text = QStringLiteral("text")};
    prompt.buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    prompt.captions = {{QMessageBox::Yes, QStringLiteral("Recover")}};
    prompt.more = QStringLiteral("more");
    for (const auto wanted : {QMessageBox::No, QMessageBox::Cancel}) {
        prompt.defaultButton = wanted;
        WhenShown<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.standardButton(box.defaultButton()), wanted);
            EXPECT_EQ(box.button(QMessageBox::Yes)->text(), prompt.captions[0].second);
            EXPECT_EQ(box.detailedText(), prompt.more);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        EXPECT_EQ(MessageDialogs().Ask(nullptr, prompt), wanted);
    }
}

TEST(MessageDialogs, CutNeitherTextNorTitle)
{
    const QString texts[][2] = {
        {QStringLiteral("ERROR"), QStringLiteral("It is not possible to set it, whatever.")},
        {QStringLiteral("Frequency of the cellular phone"), QStringLiteral("No.")}};
    for (const auto& [title, text] : texts) {
        WhenShown<QMessageBox>([](QMessageBox& box) {
            const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(box.text()));
            EXPECT_GT(box.width(), label->fontMetrics().horizontalAdvance(box.windowTitle()));
        });
        MessageDialogs().Ask(nullptr, {.title = title, .text = text});
    }
}

TEST(MessageDialogs, FileChoicesHaveTheirFiltersAndSuffix)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("radio"));
    MessageDialogs dialogs;
    WhenShown<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters().join(QLatin1Char('|')),
                  QStringLiteral("Tervan RQ-M5 Clone Files (*.RQ5)|All Files (*.*)"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    EXPECT_EQ(dialogs.ChooseFile(nullptr, FileChoice::SaveClone, name), name + QStringLiteral(".RQ5"));
    WhenShown<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters().constFirst(), QStringLiteral("CSV Files (*.csv)"));
    });
    EXPECT_EQ(dialogs.ChooseFile(nullptr, FileChoice::OpenCsv, QString()), QString());
}

}  // namespace
}  // namespace rqm5
