#pragma once

#include "orba/export.h"

#include <QString>
#include <QStringView>

namespace orba {

/// The name of a node, interned: equal names are one object, so comparing two costs one comparison of pointers.
///
/// A name may be null (an unnamed child) or empty (a child named ""); the two differ. Interned names are never
/// freed. Any thread may intern.
class PALX_API Name
{
public:
    Name() = default;
    explicit Name(QStringView text);

    bool isNull() const { return text_ == nullptr; }
    QStringView view() const { return text_ ? QStringView(*text_) : QStringView(); }
    QString toString() const { return text_ ? *text_ : QString(); }

    friend bool operator==(Name a, Name b) { return a.text_ == b.text_; }
    friend bool operator!=(Name a, Name b) { return a.text_ != b.text_; }

private:
    const QString *text_ = nullptr;
};

/// A path or key argument: takes QString, QStringView, u"..." and plain ASCII "..." without allocating.
/// Lives only as long as the call it is an argument of.
class PALX_API Path
{
public:
    Path(const QString &text) : view_(text) {}
    Path(QStringView text) : view_(text) {}
    Path(const char16_t *text) : view_(text) {}
    Path(const char *ascii);
    Path(const Path &) = delete;
    Path &operator=(const Path &) = delete;

    QStringView view() const { return view_; }
    operator QStringView() const { return view_; }

private:
    static constexpr int kInline = 96; // longer ASCII paths go through `long_`
    QStringView view_;
    char16_t short_[kInline];
    QString long_;
};

/// Joins name parts with ".".
PALX_API QString mName(const QString &a, const QString &b);
PALX_API QString mName(const QString &a, const QString &b, const QString &c);

} // namespace orba

using orba::mName;
