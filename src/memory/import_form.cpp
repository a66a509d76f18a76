#include "memory/import_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "files/list_encoding.h"
#include "files/list_map.h"
#include "ui/settings_store.h"

namespace rqm5 {
namespace {

const QString kGroup = QStringLiteral("ListMappings");

struct Choice
{
    int value;
    const char* text;
};

constexpr Choice kDelimiters[] = {{'\t', QT_TRANSLATE_NOOP("rqm5::ImportForm", "Tab")},
                                  {';', QT_TRANSLATE_NOOP("rqm5::ImportForm", "Semicolon")},
                                  {',', QT_TRANSLATE_NOOP("rqm5::ImportForm", "Comma")},
                                  {'\0', QT_TRANSLATE_NOOP("rqm5::ImportForm", "None: one field a line")}};

constexpr Choice kDecimals[] = {
    {static_cast<int>(DecimalSign::Point), QT_TRANSLATE_NOOP("rqm5::ImportForm", "Point")},
    {static_cast<int>(DecimalSign::Comma), QT_TRANSLATE_NOOP("rqm5::ImportForm", "Comma")}};

template <class Widget>
Widget* Named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

template <std::size_t N>
QString TextOf(const Choice (&choices)[N], int value)
{
    for (const Choice& choice : choices)
        if (choice.value == value)
            return ImportForm::tr(choice.text);
    return {};
}

/// The first entry leaves it to the program, and says what that finds.
template <std::size_t N>
void Fill(QComboBox& box, const Choice (&choices)[N])
{
    box.addItem(QString());
    for (const Choice& choice : choices)
        box.addItem(ImportForm::tr(choice.text), choice.value);
}

void ShowFound(QComboBox& box, const QString& found)
{
    box.setItemText(
        0, box.currentIndex() == 0 ? ImportForm::tr("Detected: %1").arg(found) : ImportForm::tr("Detect"));
}

std::vector<std::pair<QString, QString>> LoadMappings()
{
    QSettings store = SettingsStore();
    store.beginGroup(kGroup);
    std::vector<std::pair<QString, QString>> mappings;
    for (const QString& key : store.childKeys())
        mappings.emplace_back(QString::fromUtf8(QByteArray::fromPercentEncoding(key.toLatin1())),
                              store.value(key).toString());
    return mappings;
}

/// A name may hold what the store takes for groups.
QString KeyOf(const QString& name)
{
    return kGroup + QLatin1Char('/') + QString::fromLatin1(name.toUtf8().toPercentEncoding());
}

}  // namespace

ImportForm::ImportForm(QWidget* parent)
    : QWidget(parent),
      cbbImportEncoding_(Named(new QComboBox, "cbbImportEncoding")),
      cbbImportDelimiter_(Named(new QComboBox, "cbbImportDelimiter")),
      cbbImportDecimal_(Named(new QComboBox, "cbbImportDecimal")),
      chkImportTitles_(Named(new QCheckBox(tr("The first &line holds titles")), "chkImportTitles")),
      cbbImportMapping_(Named(new QComboBox, "cbbImportMapping")),
      cmbImportKeep_(Named(new QPushButton(tr("&Keep")), "cmbImportKeep")),
      cmbImportForget_(Named(new QPushButton(tr("&Forget")), "cmbImportForget"))
{
    cbbImportEncoding_->addItem(QString());
    for (const std::string_view encoding : ListEncodings())
        cbbImportEncoding_->addItem(
            QString::fromUtf8(encoding.data(), static_cast<qsizetype>(encoding.size())));
    Fill(*cbbImportDelimiter_, kDelimiters);
    Fill(*cbbImportDecimal_, kDecimals);
    cbbImportMapping_->setEditable(true);
    cbbImportMapping_->setInsertPolicy(QComboBox::NoInsert);
    cbbImportMapping_->setToolTip(tr("Type a name and press Keep to read other lists in the same way."));
    FillMappings();

    auto* mapping = new QHBoxLayout;
    mapping->addWidget(cbbImportMapping_, 1);
    mapping->addWidget(cmbImportKeep_);
    mapping->addWidget(cmbImportForget_);
    auto* left = new QFormLayout;
    left->addRow(tr("&Encoding"), cbbImportEncoding_);
    left->addRow(tr("&Between fields"), cbbImportDelimiter_);
    auto* right = new QFormLayout;
    right->addRow(tr("&Decimals begin with"), cbbImportDecimal_);
    right->addRow(tr("&Mapping"), mapping);
    static_cast<QLabel*>(right->labelForField(mapping))->setBuddy(cbbImportMapping_);
    right->addRow(chkImportTitles_);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins({});
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);

    for (QComboBox* box : {cbbImportEncoding_, cbbImportDelimiter_, cbbImportDecimal_})
        connect(box, &QComboBox::activated, this, &ImportForm::TakeChoices);
    connect(chkImportTitles_, &QCheckBox::clicked, this, [this](bool isChecked) {
        form_.hasTitles = isChecked;
        form_.columns.clear();
        emit Changed();
    });
    connect(cbbImportMapping_, &QComboBox::activated, this, &ImportForm::cbbImportMapping_Click);
    connect(cbbImportMapping_, &QComboBox::editTextChanged, this, &ImportForm::ShowMappingState);
    connect(cbbImportMapping_->lineEdit(), &QLineEdit::returnPressed, cmbImportKeep_, &QPushButton::click);
    connect(cmbImportKeep_, &QPushButton::clicked, this, &ImportForm::cmbImportKeep_Click);
    connect(cmbImportForget_, &QPushButton::clicked, this, &ImportForm::cmbImportForget_Click);
}

void ImportForm::FillMappings()
{
    const QSignalBlocker blocker(cbbImportMapping_);
    cbbImportMapping_->clear();
    cbbImportMapping_->addItem(QString());
    for (const auto& [name, text] : LoadMappings())
        cbbImportMapping_->addItem(name, text);
    ShowMappingState();
}

void ImportForm::ShowMappingState()
{
    const QString name = cbbImportMapping_->currentText().trimmed();
    cmbImportKeep_->setEnabled(!name.isEmpty());
    cmbImportForget_->setEnabled(!name.isEmpty() && cbbImportMapping_->findText(name) > 0);
}

/// In another encoding titles read otherwise, and other delimiters make other fields: what was said of the
/// columns is no longer about them.
void ImportForm::TakeChoices()
{
    form_.encoding = cbbImportEncoding_->currentIndex() > 0 ? cbbImportEncoding_->currentText().toStdString()
                                                            : std::string();
    const auto delimiter = cbbImportDelimiter_->currentIndex() > 0
                               ? std::optional(static_cast<char>(cbbImportDelimiter_->currentData().toInt()))
                               : std::nullopt;
    if (delimiter != form_.delimiter || sender() == cbbImportEncoding_)
        form_.columns.clear();
    form_.delimiter = delimiter;
    form_.decimals = cbbImportDecimal_->currentIndex() > 0
                         ? static_cast<DecimalSign>(cbbImportDecimal_->currentData().toInt())
                         : DecimalSign::Unknown;
    emit Changed();
}

void ImportForm::Assign(const std::vector<ColumnWish>& columns)
{
    form_.columns = columns;
    emit Changed();
}

void ImportForm::ShowTable(const ListTable& table)
{
    found_ = FormOf(table);
    cbbImportEncoding_->setCurrentIndex(
        std::max(0, cbbImportEncoding_->findText(QString::fromStdString(form_.encoding))));
    cbbImportDelimiter_->setCurrentIndex(
        form_.delimiter ? std::max(0, cbbImportDelimiter_->findData(static_cast<int>(*form_.delimiter))) : 0);
    cbbImportDecimal_->setCurrentIndex(
        std::max(0, cbbImportDecimal_->findData(static_cast<int>(form_.decimals))));
    ShowFound(*cbbImportEncoding_, QString::fromStdString(table.encoding));
    ShowFound(*cbbImportDelimiter_, TextOf(kDelimiters, table.delimiter));
    const QString decimals = TextOf(kDecimals, static_cast<int>(table.decimals));
    ShowFound(*cbbImportDecimal_, decimals.isEmpty() ? tr("either, each number by itself") : decimals);
    chkImportTitles_->setChecked(table.hasTitles);
}

void ImportForm::cbbImportMapping_Click()
{
    const QString text = cbbImportMapping_->currentData().toString();
    const auto parsed = ParseForm(text.toStdString());
    form_ = std::holds_alternative<ListForm>(parsed) ? std::get<ListForm>(parsed) : ListForm();
    ShowMappingState();
    emit Changed();
}

void ImportForm::cmbImportKeep_Click()
{
    const QString name = cbbImportMapping_->currentText().trimmed();
    // What was found out of this list is found out of the next one, too; only its columns may have to be
    // told.
    ListForm kept = form_;
    kept.columns = found_.columns;
    SettingsStore().setValue(KeyOf(name), QString::fromStdString(FormatForm(kept)));
    FillMappings();
    const QSignalBlocker blocker(cbbImportMapping_);
    cbbImportMapping_->setCurrentIndex(cbbImportMapping_->findText(name));
    ShowMappingState();
}

void ImportForm::cmbImportForget_Click()
{
    SettingsStore().remove(KeyOf(cbbImportMapping_->currentText().trimmed()));
    FillMappings();
}

}  // namespace rqm5
