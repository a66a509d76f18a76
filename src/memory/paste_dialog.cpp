#include "memory/paste_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QVBoxLayout>

#include "language/translated.h"

namespace rqm5 {
namespace {

constexpr QSize kUsualSize(880, 440);
constexpr QSize kWindowFrame(8, 36);

}  // namespace

dlgPaste::dlgPaste(const QString& operation, const CloneImage& image, const PastePlan& plan, QWidget* parent)
    : QDialog(parent), model_(image, nullptr)
{
    setObjectName(QStringLiteral("dlgPaste"));
    setWindowTitle(operation);
    model_.ShowPlan(plan);
    QTableView* table = MakePlanTable(model_, this);
    table->setObjectName(QStringLiteral("tblPaste"));
    table->setAccessibleName(tr("What goes where"));
    auto* summary = new QLabel(Translated(PlanSummary(image, plan)));
    summary->setObjectName(QStringLiteral("lblPasteSummary"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setEnabled(!RowsWritten(plan).empty());
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(table, 1);
    layout->addWidget(buttons);
    resize(kUsualSize.boundedTo(screen()->availableSize() - kWindowFrame));
    ok->setFocus();
}

}  // namespace rqm5
