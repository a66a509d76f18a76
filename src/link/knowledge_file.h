#pragma once

#include <QString>

#include "link/receiver_knowledge.h"

namespace rqm5 {

/// What is known of a receiver, as it is kept from run to run.
struct KnowledgeFile
{
    QString device;
    KnownBlocks blocks;
    bool arePresetsDue = false;
};

/// The user's folder for what programs can do without.
QString CacheFolder();

/// Nothing is known where the file is missing, is about another device or is not as it should be.
KnowledgeFile ReadKnowledge(const QString& path, const QString& device);

/// A file that cannot be written costs the next run a read and is no failure.
void WriteKnowledge(const QString& path, const KnowledgeFile& knowledge);

}  // namespace rqm5
