#include "help/help_topics.h"

#include <QRegularExpression>

#include "help/heading_anchors.h"

namespace rqm5 {
namespace {

struct Topic
{
    const char* name;  ///< objectName; one that ends in "_" stands for every element of that array
    const char* page;
};

constexpr char kContents[] = "index.md";

// The first name, from the control outwards, that has a row here decides.
constexpr Topic kTopics[] = {
    {"opbModel_", "vfo-and-regions.md#choosing-the-model-region"},
    {"MSFlexGrid2", "vfo-and-regions.md#the-vfo-table"},
    {"cmbRxData", "reading-and-writing.md"},
    {"cmbTxData", "reading-and-writing.md"},
    {"cmbRxData1", "reading-and-writing.md"},
    {"cmbTxData1", "reading-and-writing.md"},
    {"cmbRxData2", "reading-and-writing.md"},
    {"cmbTxData2", "reading-and-writing.md"},
    {"cmbReadBank", "reading-and-writing.md"},
    {"cmbWriteBank", "reading-and-writing.md"},
    {"MSFlexGrid1", "editing-channels.md"},
    {"txtFind", "finding-channels.md#the-find-box"},
    {"cbbFilter", "finding-channels.md#showing-some-of-the-rows"},
    {"dlgDuplicates", "finding-channels.md#duplicates"},
    {"frmBankMove", "channels-and-banks.md#when-a-new-size-moves-channels"},
    {"cbbBank", "channels-and-banks.md#how-the-memory-is-divided"},
    {"cmbClear", "channels-and-banks.md#the-operation-buttons"},
    {"cmbClAll", "channels-and-banks.md#the-operation-buttons"},
    {"cmbDelete", "channels-and-banks.md#the-operation-buttons"},
    {"cmbInsert", "channels-and-banks.md#the-operation-buttons"},
    {"cmbEnable", "channels-and-banks.md#the-operation-buttons"},
    {"cmbDisable", "channels-and-banks.md#the-operation-buttons"},
    {"cmbEnAll", "channels-and-banks.md#the-operation-buttons"},
    {"cmbDisAll", "channels-and-banks.md#the-operation-buttons"},
    {"Frame1_0", "settings.md#settings-1"},
    {"Frame1_1", "settings.md#settings-2"},
    {"Frame1_2", "channels-and-banks.md#the-memory-page"},
    {"Frame1_3", "channels-and-banks.md#the-bank-page"},
    {"txtNote", "files-and-csv.md#notes-and-the-characters-they-cannot-hold"},
    {"cmbSafeNote", "limits.md#notes-with-a-comma-or-quotes"},
    {"barMessage", "messages.md#messages-of-the-bar-above-the-tabs"},
    {"dlgModify", "channels-and-banks.md#the-channel-editor"},
    {"dlgPaste", "editing-channels.md#the-preview"},
    {"dlgParts", "editing-channels.md#cut-copy-and-paste"},
    {"dlgFill", "editing-channels.md#fill-series"},
    {"dlgCOM", "ports.md"},
    {"dlgPrint", "printing.md"},
    {"txtRawAddress", "diagnostics.md#raw-read"},
    {"cmbLinkTest", "diagnostics.md#link-test"},
    {"tblExchanges", "diagnostics.md#exchange-log"},
    {"dckDiagnostics", "diagnostics.md"},
    {"dckSpectrum", "spectrum.md"},
    {"picBanks", "channels-and-banks.md#the-bank-page"},
    {"cmbFindReceiver", "ports.md#finding-the-receiver"},
    {"dckHistory", "undo.md#the-list-of-steps"},
    {"frmHelp", "index.md#finding-your-way-in-this-window"},
};

bool Matches(const Topic& topic, const QString& name)
{
    const QLatin1String pattern(topic.name);
    return pattern.endsWith(QLatin1Char('_')) ? name.startsWith(pattern) : name == pattern;
}

}  // namespace

QString HelpTopic(const QStringList& names)
{
    for (const QString& name : names)
        for (const Topic& topic : kTopics)
            if (Matches(topic, name))
                return QLatin1String(topic.page);
    return QLatin1String(kContents);
}

QString MessageTopic(const QString& text)
{
    static const QRegularExpression sentenceEnd(QStringLiteral("[.?]|\n"));
    return QStringLiteral("messages.md#") + AnchorOf(text.section(sentenceEnd, 0, 0));
}

QStringList HelpTopics()
{
    QStringList pages = {QLatin1String(kContents)};
    for (const Topic& topic : kTopics)
        pages << QLatin1String(topic.page);
    return pages;
}

}  // namespace rqm5
