#include "memory/parts_dialog.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace rqm5 {
namespace {

// In the order of the parts.
constexpr std::array<const char*, kChannelParts> kCaptions = {QT_TRANSLATE_NOOP("Parts", "&Frequency"),
                                                              QT_TRANSLATE_NOOP("Parts", "&Mode"),
                                                              QT_TRANSLATE_NOOP("Parts", "&Step"),
                                                              QT_TRANSLATE_NOOP("Parts", "&Option"),
                                                              QT_TRANSLATE_NOOP("Parts", "Secret &code"),
                                                              QT_TRANSLATE_NOOP("Parts", "T&rain tone"),
                                                              QT_TRANSLATE_NOOP("Parts", "CTCSS &tone"),
                                                              QT_TRANSLATE_NOOP("Parts", "S&hift"),
                                                              QT_TRANSLATE_NOOP("Parts", "Shift fre&quency"),
                                                              QT_TRANSLATE_NOOP("Parts", "&Note"),
                                                              QT_TRANSLATE_NOOP("Parts", "S&kip"),
                                                              QT_TRANSLATE_NOOP("Parts", "&Enabled")};

bool HasRegion(const Region& region, int part)
{
    return part == kSecret ? region.hasSecretCode : part == kCarrier ? region.hasCarrier : true;
}

}  // namespace

dlgParts::dlgParts(const QString& title, const QString& text, Parts offered, const Region& region,
                   QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("dlgParts"));
    setWindowTitle(title);
    auto* grid = new QGridLayout;
    for (int part = 0; part < kChannelParts; ++part) {
        auto* box =
            new QCheckBox(QCoreApplication::translate("Parts", kCaptions.at(static_cast<std::size_t>(part))));
        box->setObjectName(QStringLiteral("chkPart_%1").arg(part));
        box->setEnabled(offered.Has(part) && HasRegion(region, part));
        connect(box, &QCheckBox::toggled, this, &dlgParts::ShowState);
        constexpr int kInAColumn = 6;
        grid->addWidget(box, part % kInAColumn, part / kInAColumn);
        chkPart_.at(static_cast<std::size_t>(part)) = box;
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(grid);
    layout->addWidget(buttons);
    ShowState();
}

void dlgParts::Choose(Parts parts)
{
    for (int part = 0; part < kChannelParts; ++part) {
        QCheckBox* box = chkPart_.at(static_cast<std::size_t>(part));
        box->setChecked(box->isEnabled() && parts.Has(part));
    }
}

Parts dlgParts::Chosen() const
{
    Parts chosen;
    for (int part = 0; part < kChannelParts; ++part)
        if (chkPart_.at(static_cast<std::size_t>(part))->isChecked())
            chosen.Add(part);
    return chosen;
}

void dlgParts::ShowState()
{
    ok_->setEnabled(!Chosen().IsEmpty());
}

}  // namespace rqm5
