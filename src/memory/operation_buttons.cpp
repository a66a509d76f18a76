#include "memory/operation_buttons.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <span>

#include "memory/row_commands.h"
#include "ui/form_texts.h"

namespace rqm5 {
namespace {

struct Operation
{
    const char* name;
    const char* caption;
    const char* tip;
    void (RowCommands::*run)();
};

#define TEXT(text) QT_TRANSLATE_NOOP("rqm5::MemoryPage", text)

constexpr Operation kSelectedRows[] = {
    {"cmbEnable", TEXT("E&nable"), TEXT("Enable the selected channels"), &RowCommands::cmbEnable_Click},
    {"cmbDisable", TEXT("&Disable"), TEXT("Disable the selected channels; they keep their contents"),
     &RowCommands::cmbDisable_Click},
    {"cmbInsert", TEXT("&Insert"),
     TEXT("Insert an empty row among memory rows 0 to 199; the channel in row 199 is lost"),
     &RowCommands::cmbInsert_Click},
    {"cmbDelete", TEXT("De&lete"),
     TEXT("Delete a row among memory rows 0 to 199; the rows behind it move up"),
     &RowCommands::cmbDelete_Click},
    {"cmbClear", TEXT("&Clear"), TEXT("Empty the selected channels"), &RowCommands::cmbClear_Click},
};

constexpr Operation kWholeGroup[] = {
    {"cmbEnAll", TEXT("Ena&ble All"), TEXT("Enable every channel shown"), &RowCommands::cmbEnAll_Click},
    {"cmbDisAll", TEXT("Di&sable All"), TEXT("Disable every channel shown"), &RowCommands::cmbDisAll_Click},
    {"cmbClAll", TEXT("Clear &All"), TEXT("Empty every channel shown"), &RowCommands::cmbClAll_Click},
};

constexpr const char* kOne = TEXT("Selected channel");
constexpr const char* kAll = TEXT("All channels shown");

#undef TEXT

QGroupBox* Box(const char* title, std::span<const Operation> operations, RowCommands& rows)
{
    auto* box = new QGroupBox(Designed(title));
    auto* column = new QVBoxLayout(box);
    for (const Operation& operation : operations) {
        auto* button = new QPushButton(Designed(operation.caption));
        button->setObjectName(QLatin1String(operation.name));
        button->setStatusTip(Designed(operation.tip));
        QObject::connect(button, &QPushButton::clicked, &rows, operation.run);
        column->addWidget(button);
    }
    return box;
}

}  // namespace

OperationButtons::OperationButtons(RowCommands& rows)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(Box(kOne, kSelectedRows, rows));
    column->addWidget(Box(kAll, kWholeGroup, rows));
    column->addStretch();
}

}  // namespace rqm5
