#include "controller/record_files.h"

#include "controller/texts.h"

#include <algorithm>

namespace controller {

using orba::Node;
using Found = StateFolder::Found;

QString RecordFiles::nameOf(int file) const
{
    return QStringLiteral("%1/%2.state").arg(subfolder_).arg(file);
}

QString RecordFiles::orderName() const
{
    return subfolder_ + QStringLiteral("/order.state");
}

std::vector<int> RecordFiles::filesThere() const
{
    std::vector<int> files;
    for (const QString &name : state_->files(subfolder_))
        if (const int file = name.chopped(6).toInt(); file > 0)
            files.push_back(file);
    std::sort(files.begin(), files.end());
    return files;
}

// ---------------------------------------------------------------- reading

std::vector<RecordFiles::Entry> RecordFiles::readOrder(bool *isWhole)
{
    std::vector<Entry> entries;
    Node order;
    if (state_->read(orderName(), &order) == Found::Good) {
        for (int i = 0; !order.isPacked() && i < order.size(); ++i) {
            const Node &line = *order.at(i);
            entries.push_back({{line.getString(u"key"), nullptr}, static_cast<int>(line.getInt(u"file"))});
        }
        return entries;
    }
    *isWhole = filesThere().empty();
    for (const int file : filesThere())
        entries.push_back({{}, file});
    return entries;
}

std::vector<KeptRecord> RecordFiles::load()
{
    const std::vector<int> files = filesThere();
    lastFile_ = files.empty() ? 0 : files.back();
    entries_.clear();
    bool isWhole = true;
    for (const Entry &entry : readOrder(&isWhole))
        isWhole = loadRecord(entry) && isWhole;
    QString why;
    if (!isWhole && !writeOrder(entries_, &why)) // or the loss would be told at every start
        state_->report(why);
    removeOthers();
    std::vector<KeptRecord> records;
    for (const Entry &entry : entries_)
        records.push_back(entry.record);
    return records;
}

bool RecordFiles::loadRecord(const Entry &entry)
{
    Node kept;
    if (state_->read(nameOf(entry.file), &kept) != Found::Good) {
        if (!entry.record.key.isEmpty())
            state_->report(Texts::tr("\"%1\" is lost").arg(entry.record.key));
        return false;
    }
    auto data = std::make_shared<Node>();
    data->take(*kept.ensure(u"data"));
    const KeptRecord record{kept.getString(u"key"), data};
    const auto known = std::find_if(entries_.begin(), entries_.end(),
                                    [&record](const Entry &e) { return e.record.key == record.key; });
    if (known == entries_.end())
        entries_.push_back({record, entry.file});
    else
        *known = {record, entry.file}; // without an order: the later file is the newer one
    return true;
}

// ---------------------------------------------------------------- writing

const RecordFiles::Entry *RecordFiles::entryOf(const QString &key) const
{
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&key](const Entry &e) { return e.record.key == key; });
    return found == entries_.end() ? nullptr : &*found;
}

bool RecordFiles::isKept(const KeptRecord &record) const
{
    const Entry *entry = entryOf(record.key);
    return entry && entry->record.data == record.data;
}

bool RecordFiles::isSameOrder(const std::vector<KeptRecord> &records) const
{
    return std::equal(
        records.begin(), records.end(), entries_.begin(), entries_.end(),
        [](const KeptRecord &record, const Entry &entry) { return record.key == entry.record.key; });
}

bool RecordFiles::writeRecord(const KeptRecord &record, int file, QString *why)
{
    Node kept;
    kept.ensure(u"key")->setString(record.key);
    kept.ensure(u"data")->assign(*record.data);
    return state_->write(nameOf(file), kept, why);
}

bool RecordFiles::writeOrder(const std::vector<Entry> &entries, QString *why)
{
    Node order;
    order.reset(Node::Kind::List);
    for (const Entry &entry : entries) {
        Node *line = order.add();
        line->ensure(u"key")->setString(entry.record.key);
        line->ensure(u"file")->setInt(entry.file);
    }
    return state_->write(orderName(), order, why);
}

/// Files that no order names: left by a save that was cut off, or replaced.
void RecordFiles::removeOthers()
{
    for (const int file : filesThere())
        if (std::none_of(entries_.begin(), entries_.end(), [file](const Entry &e) { return e.file == file; }))
            state_->remove(nameOf(file));
}

bool RecordFiles::rewriteInPlace(const std::vector<KeptRecord> &records, QString *why)
{
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (isKept(records[i]))
            continue;
        if (!writeRecord(records[i], entries_[i].file, why))
            return false;
        entries_[i].record = records[i];
    }
    return true;
}

/// The entries of these records, the changed ones written to new files. False when a file could not be written.
bool RecordFiles::writeChanged(const std::vector<KeptRecord> &records, std::vector<Entry> *entries,
                               QString *why)
{
    for (const KeptRecord &record : records) {
        if (isKept(record)) {
            entries->push_back(*entryOf(record.key));
            continue;
        }
        entries->push_back({record, ++lastFile_});
        if (!writeRecord(record, lastFile_, why))
            return false;
    }
    return true;
}

bool RecordFiles::save(const std::vector<KeptRecord> &records, QString *why)
{
    const auto changed =
        std::count_if(records.begin(), records.end(), [this](const KeptRecord &r) { return !isKept(r); });
    if (changed <= 1 && isSameOrder(records))
        return rewriteInPlace(records, why);
    std::vector<Entry> entries;
    if (!writeChanged(records, &entries, why) || !writeOrder(entries, why)) {
        removeOthers();
        return false;
    }
    entries_ = std::move(entries);
    removeOthers();
    return true;
}

} // namespace controller
