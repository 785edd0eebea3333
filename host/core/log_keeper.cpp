#include "core/log_keeper.h"

#include "core/global_nodes.h"
#include "nexo/manager_helper.h"
#include "orba/files.h"
#include "orba/module_manager.h"
#include "orba/module_object.h"

#include <QFileInfo>

namespace host {

using orba::ModuleObject;
using orba::Node;

namespace {

ModuleObject *list()
{
    return m("quill.log.list");
}

/// The keys of a record and nothing else, each of bounded length.
Node bounded(const Node &record)
{
    Node kept;
    for (const QStringView key : {u"level", u"title", u"date_time", u"rcid"}) {
        QString text = record.getString(key);
        if (text.size() > LogKeeper::kMaxText)
            text = text.left(LogKeeper::kMaxText) + QChar(0x2026);
        kept.ensure(key)->setString(text);
    }
    return kept;
}

} // namespace

LogKeeper::LogKeeper(QObject *parent) : QObject(parent)
{
    connect(m("quill.log.current"), &ModuleObject::changed, this,
            [this](const QVariant &value) { take(value); });
    connect(nexo::ManagerHelper::instance(), &nexo::ManagerHelper::noticeThrown, this,
            &LogKeeper::takeNotice);
    connect(list(), &ModuleObject::structureChanged, this, &LogKeeper::followList);
}

void LogKeeper::keepIn(const QString &file)
{
    auto opened = std::make_unique<RecordFile>(file, kMaxRecords);
    std::vector<Node> kept;
    QString why;
    if (!opened->read(&kept, &why)) {
        const QString aside = orba::setAside(file);
        note(false,
             aside.isEmpty() ? why : tr("%1; it was kept as %2").arg(why, QFileInfo(aside).fileName()));
    }
    const Node present = list()->node();
    list()->clear();
    file_ = std::move(opened);
    for (const Node &record : kept)
        list()->addUnnamed()->copyFrom(record);
    for (int i = 0; i < present.size(); ++i)
        append(*present.at(i));
}

void LogKeeper::take(const QVariant &value)
{
    Node record;
    orba::FormatError fault;
    const bool read = orba::ModuleManager::fromJson(value.toString().toUtf8(), &record, &fault);
    const QString title = record.getString(u"title");
    if (!read || title.isEmpty()) {
        nexo::ManagerHelper::instance()->throwLog(
            this, QStringLiteral("error"),
            tr("A log record cannot be kept: %1").arg(read ? tr("it has no title") : fault.text()));
        return;
    }
    const QString level = record.getString(u"level");
    append(record);
    nexo::ManagerHelper::instance()->throwLog(this, level, title);
}

void LogKeeper::takeNotice(QObject *sender, const QString &level, const QString &text)
{
    if (sender != this && !text.isEmpty())
        append(makeRecord(level, text));
}

void LogKeeper::append(const Node &published)
{
    const Node record = bounded(published);
    while (list()->cmobjCount() >= kMaxRecords)
        list()->c(0)->remove();
    list()->addUnnamed()->copyFrom(record);
    if (!file_)
        return;
    QString why;
    note(file_->append(record, &why), why);
}

void LogKeeper::followList()
{
    if (!file_ || list()->cmobjCount() > 0)
        return;
    QString why;
    note(file_->clear(&why), why);
}

void LogKeeper::note(bool done, const QString &why)
{
    if (!done && !isFailing_)
        nexo::ManagerHelper::instance()->throwLog(this, QStringLiteral("warning"),
                                                  tr("The log cannot be kept over a restart: %1").arg(why));
    isFailing_ = !done;
}

} // namespace host
