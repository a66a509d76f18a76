#include "app/conflicts_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "image/display_text.h"
#include "language/translated.h"

namespace rqm5 {
namespace {

enum ConflictColumn { kWhat, kKnown, kNow, kHere, kDecision };

QString Text(const Message& text)
{
    return QString::fromStdString(VisibleText(Said(text)));
}

}  // namespace

dlgWriteConflicts::dlgWriteConflicts(const CloneImage& image, const ChangePlan& plan, QWidget* parent)
    : QDialog(parent)
{
    constexpr int kLetters = 130;
    constexpr int kLines = 20;
    setObjectName(QStringLiteral("dlgWriteConflicts"));
    setWindowTitle(tr("Changed at the Receiver, Too"));
    auto* text =
        new QLabel(tr("What is to be written was changed at the receiver since it was last read. "
                      "Nothing has been written yet. Decide for each row."));
    text->setWordWrap(true);
    auto* list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("lstConflicts"));
    list->setAccessibleName(tr("Rows that were changed on both sides"));
    list->setHeaderLabels(
        {tr("Row and field"), tr("Was"), tr("Receiver now"), tr("To be written"), tr("Decision")});
    for (const Conflict& conflict : plan.Conflicts())
        AddConflict(DescribeConflict(image, plan, conflict), *list);
    list->expandAll();
    const int letter = fontMetrics().averageCharWidth();
    list->setColumnWidth(kWhat, letter * kLetters * 2 / 7);
    for (const int column : {kKnown, kNow, kHere})
        list->setColumnWidth(column, letter * kLetters / 7);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    const auto addForAll = [&](const char* name, const QString& caption, Decision decision) {
        QPushButton* button = buttons->addButton(caption, QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, decision] { DecideAll(decision); });
    };
    addForAll("cmbKeepMine", tr("Keep all &mine"), Mine);
    addForAll("cmbTakeReceivers", tr("Take all the &receiver's"), Receivers);
    OKButton_ = buttons->button(QDialogButtonBox::Ok);
    OKButton_->setObjectName(QStringLiteral("OKButton"));
    OKButton_->setText(tr("&Write"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    resize(letter * kLetters, fontMetrics().height() * kLines);
    EnableWrite();
}

void dlgWriteConflicts::AddConflict(const ConflictRow& conflict, QTreeWidget& list)
{
    auto* row = new QTreeWidgetItem(&list, {Text(conflict.label)});
    for (const ConflictField& field : conflict.fields)
        new QTreeWidgetItem(row,
                            {Text(field.name), Text(field.known), Text(field.receiver), Text(field.image)});
    auto* decision = new QComboBox(&list);
    decision->setObjectName(QStringLiteral("cbbDecision_%1").arg(decisions_.size()));
    decision->setAccessibleName(tr("Decision for %1").arg(Text(conflict.label)));
    decision->addItems({tr("Decide"), tr("Keep mine"), tr("Take the receiver's")});
    connect(decision, &QComboBox::currentIndexChanged, this, &dlgWriteConflicts::EnableWrite);
    list.setItemWidget(row, kDecision, decision);
    decisions_.push_back(decision);
}

void dlgWriteConflicts::DecideAll(Decision decision)
{
    for (QComboBox* box : decisions_)
        box->setCurrentIndex(decision);
}

void dlgWriteConflicts::EnableWrite()
{
    if (OKButton_ != nullptr)
        OKButton_->setEnabled(std::ranges::all_of(
            decisions_, [](const QComboBox* box) { return box->currentIndex() != Open; }));
}

std::vector<bool> dlgWriteConflicts::TakesReceivers() const
{
    std::vector<bool> decided;
    for (const QComboBox* box : decisions_)
        decided.push_back(box->currentIndex() == Receivers);
    return decided;
}

}  // namespace rqm5
