#include "app/recent_files.h"

#include <QDir>
#include <QFileInfo>

#include "language/language.h"
#include "ui/form_texts.h"
#include "ui/plain_text.h"
#include "ui/settings_store.h"

namespace rqm5 {

namespace {

constexpr char kKey[] = "recentFiles";

QStringList KeptFiles()
{
    return SettingsStore().value(QLatin1String(kKey)).toStringList();
}

/// The name first, because it is what people look for; the folder tells files of one name apart.
QString Caption(int number, const QString& path)
{
    const QFileInfo info(path);
    QString folder = QDir::toNativeSeparators(info.absolutePath());
    const QString home = QDir::toNativeSeparators(QDir::homePath());
    if (folder == home || folder.startsWith(home + QDir::separator()))
        folder.replace(0, home.size(), QStringLiteral("~"));
    QString text = QStringLiteral("%1   (%2)").arg(VisibleText(info.fileName()), VisibleText(folder));
    return QStringLiteral("&%1  ").arg(number) + text.replace(u'&', QStringLiteral("&&"));
}

}  // namespace

RecentFiles::RecentFiles(QMenu& mnuFile, QObject* parent) : QObject(parent)
{
    mnuFile.addSeparator();
    mnuFileRecent_ = mnuFile.addMenu(Designed(QT_TR_NOOP("Open Re&cent")));
    SetTextContext(*mnuFileRecent_, "rqm5::RecentFiles");
    mnuFileRecent_->setObjectName(QStringLiteral("mnuFileRecent"));
    mnuFileRecent_->menuAction()->setStatusTip(
        Designed(QT_TR_NOOP("Open a clone file that was opened or saved lately")));
    mnuFileRecent_->setToolTipsVisible(true);
    // Another window of the program may have added files meanwhile.
    connect(mnuFileRecent_, &QMenu::aboutToShow, this, &RecentFiles::Fill);
    connect(&mnuFile, &QMenu::aboutToShow, this, &RecentFiles::Fill);
    connect(&Language::OfProgram(), &Language::Changed, this, &RecentFiles::Fill);
    Fill();
}

void RecentFiles::Add(const QString& path)
{
    QStringList files = KeptFiles();
    files.removeAll(path);
    files.prepend(path);
    Keep(files.mid(0, kMostFiles));
}

void RecentFiles::Remove(const QString& path)
{
    QStringList files = KeptFiles();
    files.removeAll(path);
    Keep(files);
}

void RecentFiles::SetTransferRunning(bool isRunning)
{
    isTransferRunning_ = isRunning;
    Fill();
}

void RecentFiles::Keep(const QStringList& files)
{
    SettingsStore().setValue(QLatin1String(kKey), files);
    Fill();
}

void RecentFiles::Fill()
{
    mnuFileRecent_->clear();
    const QStringList files = KeptFiles().mid(0, kMostFiles);
    for (int i = 0; i < files.size(); ++i) {
        const QString& path = files[i];
        QAction* item = mnuFileRecent_->addAction(Caption(i + 1, path));
        item->setObjectName(QStringLiteral("mnuFileRecent_%1").arg(i));
        item->setToolTip(VisibleText(path));
        item->setStatusTip(VisibleText(path));
        // Later, because opening a file fills this menu anew while the item is still at work.
        connect(
            item, &QAction::triggered, this, [this, path] { emit Chosen(path); }, Qt::QueuedConnection);
    }
    if (!files.isEmpty()) {
        mnuFileRecent_->addSeparator();
        QAction* clear = mnuFileRecent_->addAction(tr("&Empty This List"));
        clear->setObjectName(QStringLiteral("mnuFileRecentClear"));
        clear->setStatusTip(tr("The files stay; only the list forgets them"));
        connect(
            clear, &QAction::triggered, this, [this] { Keep({}); }, Qt::QueuedConnection);
    }
    mnuFileRecent_->menuAction()->setEnabled(!files.isEmpty() && !isTransferRunning_);
}

}  // namespace rqm5
