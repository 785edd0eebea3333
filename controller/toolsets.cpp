#include "controller/toolsets.h"

#include "controller/texts.h"

#include <cmath>

namespace controller {

using orba::Node;

namespace {

constexpr int kMaxTools = 1000; // names come from outside; without a bound they would fill memory and disk

bool readFrame(const Node &record, const char16_t *key, Pose *pose, QString *why)
{
    const Node *frame = record.child(QStringView(key));
    if (!frame)
        *why = Texts::tr("\"%1\" is missing").arg(QString::fromUtf16(key));
    else if (!readPose(*frame, pose, why))
        *why = Texts::tr("in \"%1\": %2").arg(QString::fromUtf16(key), *why);
    else
        return true;
    return false;
}

QString loadFault(const Node &record)
{
    const Node *mass = record.find(u"load.mass");
    if (!mass)
        return Texts::tr("\"load.mass\" is missing");
    const bool isNumber = mass->kind() == Node::Kind::Int || mass->kind() == Node::Kind::Double;
    if (!isNumber || !(mass->toDouble() >= 0) || !std::isfinite(mass->toDouble()))
        return Texts::tr("\"load.mass\" is no mass: %1").arg(mass->toString());
    return {};
}

QString faultOf(const Node &record)
{
    const Node *name = record.child(QStringView(u"name"));
    if (!name || name->kind() != Node::Kind::String || name->toString().isEmpty())
        return Texts::tr("\"name\" is no text");
    if (name->toString() == QStringView(Toolsets::kNone))
        return Texts::tr("the name \"%1\" stands for no tool").arg(name->toString());
    QString why;
    Pose pose;
    if (!readFrame(record, u"end", &pose, &why) || !readFrame(record, u"ref", &pose, &why))
        return why;
    return loadFault(record);
}

} // namespace

const Node *Toolsets::find(const QString &name) const
{
    for (int i = 0; i < list_.size(); ++i)
        if (list_.at(i)->getString(u"name") == name)
            return list_.at(i);
    return nullptr;
}

QString Toolsets::activate(const Node &record)
{
    const QString why = faultOf(record);
    if (!why.isEmpty())
        return Texts::tr("no toolset: %1").arg(why);
    const QString name = record.getString(u"name");
    auto *known = const_cast<Node *>(find(name));
    if (!known && list_.size() >= kMaxTools)
        return Texts::tr("there are %1 tools already, no more are kept").arg(kMaxTools);
    (known ? known : list_.add())->assign(record);
    active_ = name;
    return {};
}

bool Toolsets::frames(const QString &name, Frames *frames, QString *why) const
{
    *frames = Frames();
    if (name == QStringView(kNone))
        return true;
    const Node *record = find(name);
    if (!record) {
        *why = Texts::tr("there is no toolset \"%1\"").arg(name);
        return false;
    }
    return readFrame(*record, u"ref", &frames->reference, why) &&
           readFrame(*record, u"end", &frames->tool, why);
}

Node Toolsets::saved() const
{
    Node saved;
    saved.ensure(u"active")->setString(active_);
    saved.ensure(u"list")->assign(list_);
    return saved;
}

void Toolsets::restore(const Node &saved)
{
    *this = Toolsets();
    const Node *list = saved.child(QStringView(u"list"));
    for (int i = 0; list && !list->isPacked() && i < list->size(); ++i)
        activate(*list->at(i));
    const QString active = saved.getString(u"active");
    active_ = find(active) ? active : QString::fromUtf16(kNone);
}

} // namespace controller
