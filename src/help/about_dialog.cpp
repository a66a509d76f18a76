#include "help/about_dialog.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace rqm5 {

dlgAbout::dlgAbout(const QList<AboutFact>& facts, QWidget* parent) : QDialog(parent), facts_(facts)
{
    setObjectName(QStringLiteral("dlgAbout"));
    setWindowTitle(tr("About"));
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    AddFacts();
    AddButtons();
}

void dlgAbout::AddFacts()
{
    auto* form = new QFormLayout;
    for (const AboutFact& fact : facts_) {
        auto* value = new QLabel(fact.value, this);
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        value->setFocusPolicy(Qt::NoFocus);
        form->addRow(fact.name + QLatin1Char(':'), value);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(form);
}

void dlgAbout::AddButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    auto* copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("cmbCopy"));
    copy->setToolTip(tr("Copies all of this, for a bug report"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &dlgAbout::cmbCopy_Click);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout()->addWidget(buttons);
}

void dlgAbout::cmbCopy_Click()
{
    QGuiApplication::clipboard()->setText(AboutText(facts_));
}

}  // namespace rqm5
