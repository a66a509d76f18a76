#include "app/import_details.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "language/translated.h"
#include "ui/plain_text.h"

namespace rqm5 {
namespace {

constexpr QSize kUsualSize(760, 440);
constexpr QSize kWindowFrame(8, 36);

}  // namespace

dlgImportDetails::dlgImportDetails(const QString& fileName, const CsvFindings& findings, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("dlgImportDetails"));
    setWindowTitle(tr("Import (%1)").arg(VisibleText(fileName)));
    auto* summary = new QLabel(Translated(findings.Summary()));
    summary->setObjectName(QStringLiteral("lblDetailsSummary"));
    summary->setTextFormat(Qt::PlainText);
    auto* list = new QPlainTextEdit;
    list->setObjectName(QStringLiteral("txtDetails"));
    list->setAccessibleName(tr("What was read otherwise"));
    list->setReadOnly(true);
    list->setLineWrapMode(QPlainTextEdit::NoWrap);
    list->setTabChangesFocus(true);
    QString lines;
    for (const Message& line : findings.Lines())
        lines += Translated(line) + QLatin1Char('\n');
    list->setPlainText(lines.trimmed());

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* close = buttons->button(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("CloseButton"));
    auto* again = buttons->addButton(tr("&Read again with decimal commas"), QDialogButtonBox::ActionRole);
    again->setObjectName(QStringLiteral("cmbReadCommas"));
    again->setEnabled(findings.decimalCommas > 0);
    connect(again, &QPushButton::clicked, this, [this] {
        wantsCommas_ = true;
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* hint = new QLabel(tr("Edit > Undo takes the import back."));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(list, 1);
    layout->addWidget(hint);
    layout->addWidget(buttons);
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
    close->setFocus();
}

}  // namespace rqm5
