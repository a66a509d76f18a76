#include "memory/filter_box.h"

#include <QHBoxLayout>

#include "language/language.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

// In the order of RowFilter.
constexpr const char* kFilters[] = {
    QT_TRANSLATE_NOOP("rqm5::FilterBox", "All rows"),  QT_TRANSLATE_NOOP("rqm5::FilterBox", "With a channel"),
    QT_TRANSLATE_NOOP("rqm5::FilterBox", "Enabled"),   QT_TRANSLATE_NOOP("rqm5::FilterBox", "Disabled"),
    QT_TRANSLATE_NOOP("rqm5::FilterBox", "Skipped"),   QT_TRANSLATE_NOOP("rqm5::FilterBox", "With a note"),
    QT_TRANSLATE_NOOP("rqm5::FilterBox", "Duplicates")};

}  // namespace

FilterBox::FilterBox(QWidget* parent)
    : QWidget(parent), cbbFilter_(new QComboBox(this)), lblShown_(new QLabel(this))
{
    for (const char* text : kFilters)
        cbbFilter_->addItem(tr(text));
    cbbFilter_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cbbFilter_->setObjectName(QStringLiteral("cbbFilter"));
    cbbFilter_->setStatusTip(Designed(QT_TR_NOOP("Which rows of the group the table shows")));
    lblShown_->setObjectName(QStringLiteral("lblShown"));
    auto* label = new QLabel(Designed(QT_TR_NOOP("Sh&ow:")), this);
    label->setBuddy(cbbFilter_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{label, cbbFilter_, lblShown_})
        row->addWidget(part);
    connect(cbbFilter_, &QComboBox::currentIndexChanged, this, &FilterBox::Changed);
    connect(&Language::OfProgram(), &Language::Changed, this, &FilterBox::ShowTexts);
}

void FilterBox::ShowTexts()
{
    for (int i = 0; i < cbbFilter_->count(); ++i)
        cbbFilter_->setItemText(i, tr(kFilters[i]));
    ShowCount(shown_, all_);
}

void FilterBox::ShowCount(int shown, int all)
{
    shown_ = shown;
    all_ = all;
    lblShown_->setVisible(IsOn());
    lblShown_->setText(tr("%1 of %2 rows").arg(shown).arg(all));
}

}  // namespace rqm5
