#pragma once

#include "controller/state_folder.h"

#include <memory>
#include <vector>

namespace controller {

/// A record as it is kept. The data never changes once it stands here, so that another thread can write it meanwhile;
/// a change makes new data.
struct KeptRecord
{
    QString key;
    std::shared_ptr<const orba::Node> data;
};

/// An ordered collection of records on disk, one file each and one with the order. Replacing all of them counts whole or
/// not at all, whenever the process ends: changed records get new files, which count from the moment the order names them.
class RecordFiles
{
public:
    /// `state` must outlive this.
    RecordFiles(StateFolder *state, QString subfolder) : state_(state), subfolder_(std::move(subfolder)) {}

    /// All good records in their order. Without a good order every record that is there, in the order of their files.
    std::vector<KeptRecord> load();
    /// Keys must differ. Writes what is not the same data as before. False with a reason; what was kept before then stands.
    bool save(const std::vector<KeptRecord> &records, QString *why);

private:
    struct Entry
    {
        KeptRecord record;
        int file;
    };
    QString nameOf(int file) const;
    QString orderName() const;
    std::vector<int> filesThere() const;
    /// `isWhole` becomes false when records are there without their order.
    std::vector<Entry> readOrder(bool *isWhole);
    bool loadRecord(const Entry &entry);
    const Entry *entryOf(const QString &key) const;
    bool isKept(const KeptRecord &record) const;
    bool isSameOrder(const std::vector<KeptRecord> &records) const;
    bool writeRecord(const KeptRecord &record, int file, QString *why);
    bool writeChanged(const std::vector<KeptRecord> &records, std::vector<Entry> *entries, QString *why);
    bool writeOrder(const std::vector<Entry> &entries, QString *why);
    bool rewriteInPlace(const std::vector<KeptRecord> &records, QString *why);
    void removeOthers();

    StateFolder *state_;
    QString subfolder_;
    std::vector<Entry> entries_; ///< as on disk
    int lastFile_ = 0;
};

} // namespace controller
