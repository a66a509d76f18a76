#pragma once

#include <QMenu>
#include <QObject>
#include <QStringList>

namespace rqm5 {

/// File > Open Recent: the clone files that were opened or saved last, the latest first.
class RecentFiles : public QObject
{
    Q_OBJECT

  public:
    static constexpr int kMostFiles = 9;  ///< as many as a digit can choose

    /// Adds the menu below the items of the File menu.
    RecentFiles(QMenu& mnuFile, QObject* parent);

    /// This file is the latest now.
    void Add(const QString& path);

    /// This one could not be opened; it is not offered again.
    void Remove(const QString& path);

    /// Another file cannot be opened while a transfer runs.
    void SetTransferRunning(bool isRunning);

  signals:
    void Chosen(const QString& path);

  private:
    void Fill();
    void Keep(const QStringList& files);

    QMenu* mnuFileRecent_;
    bool isTransferRunning_ = false;
};

}  // namespace rqm5
