#include "printing/print_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "language/translated.h"
#include "memory/bank_layout.h"
#include "printing/listing_printer.h"

namespace rqm5 {
namespace {

constexpr int kToPrinter = 0;
constexpr int kToPdf = 1;

QCheckBox* CheckBox(const QString& caption, const QString& name, QLayout& layout)
{
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    box->setChecked(true);
    layout.addWidget(box);
    return box;
}

QRadioButton* Option(QButtonGroup& group, int id, const QString& caption)
{
    auto* option = new QRadioButton(caption);
    option->setObjectName(QStringLiteral("%1_%2").arg(group.objectName()).arg(id));
    group.addButton(option, id);
    return option;
}

QButtonGroup* OptionGroup(QObject* parent, const QString& name)
{
    auto* group = new QButtonGroup(parent);
    group->setObjectName(name);
    return group;
}

}  // namespace

dlgPrint::dlgPrint(const QStringList& printers, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("dlgPrint"));
    setWindowTitle(tr("Print"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(ContentsBox());
    column->addWidget(PaperBox());
    column->addWidget(TargetBox(printers));
    column->addStretch();
    column->addWidget(Buttons());
    cmbPrint_->setDefault(true);
    chkPrintSettings_->setFocus();
    ShowLayout(DefaultPageLayout());
    ShowPossible();
}

QWidget* dlgPrint::ContentsBox()
{
    auto* box = new QGroupBox(tr("What to print"));
    auto* column = new QVBoxLayout(box);
    chkPrintSettings_ = CheckBox(tr("&Settings"), QStringLiteral("chkPrintSettings"), *column);
    chkPrintVfo_ = CheckBox(tr("&VFO table"), QStringLiteral("chkPrintVfo"), *column);
    chkPrintMemory_ = CheckBox(tr("&Memory channels"), QStringLiteral("chkPrintMemory"), *column);
    cbbPrintGroup_ = new QComboBox;
    cbbPrintGroup_->setObjectName(QStringLiteral("cbbPrintGroup"));
    for (int selector = 0; selector < kSelectorEntries; ++selector)
        cbbPrintGroup_->addItem(Translated(SelectorText(selector)));
    cbbPrintGroup_->setCurrentIndex(kSelectAll);
    auto* memory = new QFormLayout;
    memory->setContentsMargins(24, 0, 0, 0);
    memory->addRow(tr("&Group:"), cbbPrintGroup_);
    column->addLayout(memory);
    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(24, 0, 0, 0);
    column->addLayout(rows);
    chkSkipEmpty_ = CheckBox(tr("&Leave out empty rows"), QStringLiteral("chkSkipEmpty"), *rows);
    chkPrintSpectrum_ =
        CheckBox(tr("Sp&ectrum of all channels"), QStringLiteral("chkPrintSpectrum"), *column);
    chkPrintSpectrum_->setChecked(false);
    for (QCheckBox* part : {chkPrintSettings_, chkPrintVfo_, chkPrintMemory_, chkPrintSpectrum_})
        connect(part, &QCheckBox::toggled, this, &dlgPrint::ShowPossible);
    return box;
}

QWidget* dlgPrint::PaperBox()
{
    auto* box = new QGroupBox(tr("Paper"));
    auto* form = new QFormLayout(box);
    cbbPaper_ = new QComboBox;
    cbbPaper_->setObjectName(QStringLiteral("cbbPaper"));
    cbbPaper_->addItem(tr("A4"), QPageSize::A4);
    cbbPaper_->addItem(tr("Letter"), QPageSize::Letter);
    form->addRow(tr("Si&ze:"), cbbPaper_);
    opbOrientation_ = OptionGroup(this, QStringLiteral("opbOrientation"));
    auto* orientation = new QHBoxLayout;
    orientation->addWidget(Option(*opbOrientation_, QPageLayout::Portrait, tr("P&ortrait")));
    orientation->addWidget(Option(*opbOrientation_, QPageLayout::Landscape, tr("L&andscape")));
    orientation->addStretch();
    form->addRow(tr("Orientation:"), orientation);
    return box;
}

QWidget* dlgPrint::TargetBox(const QStringList& printers)
{
    auto* box = new QGroupBox(tr("Print to"));
    auto* rows = new QGridLayout(box);
    opbPrintTo_ = OptionGroup(this, QStringLiteral("opbPrintTo"));
    cbbPrinter_ = new QComboBox;
    cbbPrinter_->setObjectName(QStringLiteral("cbbPrinter"));
    cbbPrinter_->setAccessibleName(tr("Printer"));
    cbbPrinter_->setPlaceholderText(tr("no printer installed"));
    cbbPrinter_->addItems(printers);
    cbbPrinter_->setCurrentIndex(printers.isEmpty() ? -1 : 0);
    rows->addWidget(Option(*opbPrintTo_, kToPrinter, tr("P&rinter:")), 0, 0);
    rows->addWidget(cbbPrinter_, 0, 1);
    rows->addWidget(Option(*opbPrintTo_, kToPdf, tr("P&DF file")), 1, 0, 1, 2);
    rows->setColumnStretch(1, 1);
    opbPrintTo_->button(printers.isEmpty() ? kToPdf : kToPrinter)->setChecked(true);
    connect(opbPrintTo_, &QButtonGroup::idToggled, this, &dlgPrint::ShowPossible);
    return box;
}

QWidget* dlgPrint::Buttons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    cmbPreview_ = buttons->addButton(tr("Previe&w..."), QDialogButtonBox::ActionRole);
    cmbPreview_->setObjectName(QStringLiteral("cmbPreview"));
    cmbPrint_ = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    cmbPrint_->setObjectName(QStringLiteral("cmbPrint"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(cmbPreview_, &QPushButton::clicked, this, &dlgPrint::PreviewRequested);
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgPrint::PrintRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &dlgPrint::reject);
    return buttons;
}

void dlgPrint::ShowPossible()
{
    const ListingChoice choice = Choice();
    const bool isAnything = choice.settings || choice.vfo || choice.memory || HasSpectrum();
    cmbPreview_->setEnabled(isAnything);
    cmbPrint_->setEnabled(isAnything);
    cbbPrintGroup_->setEnabled(choice.memory);
    chkSkipEmpty_->setEnabled(choice.memory);
    cbbPrinter_->setEnabled(!IsPdf());
}

ListingChoice dlgPrint::Choice() const
{
    return {chkPrintSettings_->isChecked(), chkPrintVfo_->isChecked(), chkPrintMemory_->isChecked(),
            cbbPrintGroup_->currentIndex(), chkSkipEmpty_->isChecked()};
}

QPageLayout dlgPrint::Layout() const
{
    QPageLayout layout = DefaultPageLayout();
    const auto paper = static_cast<QPageSize::PageSizeId>(cbbPaper_->currentData().toInt());
    layout.setPageSize(QPageSize(paper), layout.margins());
    layout.setOrientation(static_cast<QPageLayout::Orientation>(opbOrientation_->checkedId()));
    return layout;
}

void dlgPrint::ShowLayout(const QPageLayout& layout)
{
    const int paper = cbbPaper_->findData(layout.pageSize().id());
    if (paper >= 0)
        cbbPaper_->setCurrentIndex(paper);
    opbOrientation_->button(layout.orientation())->setChecked(true);
}

bool dlgPrint::IsPdf() const
{
    return opbPrintTo_->checkedId() == kToPdf;
}

QString dlgPrint::Printer() const
{
    return cbbPrinter_->currentText();
}

}  // namespace rqm5
