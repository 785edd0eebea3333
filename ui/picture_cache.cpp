#include "ui/picture_cache.h"

#include "pattern/recipe_picture.h"

PictureCache::PictureCache(Source source, QSize pixels, QObject *parent)
    : QObject(parent), source_(std::move(source)), pixels_(pixels)
{
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &PictureCache::drawNext);
}

QPixmap PictureCache::picture(const QString &name)
{
    const Entry entry = entries_.value(name);
    if (!entry.current && !waiting_.contains(name)) {
        waiting_.append(name);
        turn_.start(0);
    }
    return entry.picture;
}

void PictureCache::invalidate()
{
    for (Entry &entry : entries_)
        entry.current = false;
}

void PictureCache::drawNext()
{
    if (waiting_.isEmpty())
        return;
    const QString name = waiting_.takeFirst();
    if (!waiting_.isEmpty())
        turn_.start(0);
    const orba::Node *stack = source_(name);
    if (!stack) {
        entries_.remove(name);
        return;
    }
    entries_.insert(name, {QPixmap::fromImage(palx::recipePicture(*stack, pixels_)), true});
    Q_EMIT drawn(name);
}
