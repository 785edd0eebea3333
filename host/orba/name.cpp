#include "orba/name.h"

#include <QHash>

#include <mutex>

namespace orba {

namespace {

struct NameTable {
    std::mutex mutex; // not Qt's, which the thread sanitizer cannot see through
    // Keys view into the interned strings, so a look-up builds no QString.
    QHash<QStringView, const QString *> names;
};

NameTable &nameTable()
{
    static NameTable *table = new NameTable; // outlives every static that holds a name
    return *table;
}

} // namespace

Name::Name(QStringView text)
{
    NameTable &table = nameTable();
    const std::lock_guard<std::mutex> lock(table.mutex);
    const auto known = table.names.constFind(text);
    if (known != table.names.constEnd()) {
        text_ = known.value();
        return;
    }
    const auto *owned = new QString(text.isNull() ? QString(QLatin1String("")) : text.toString());
    table.names.insert(QStringView(*owned), owned);
    text_ = owned;
}

Path::Path(const char *ascii)
{
    int n = 0;
    for (; ascii && ascii[n] != '\0'; ++n) {
        if (n == kInline || static_cast<unsigned char>(ascii[n]) > 0x7f) {
            long_ = QString::fromUtf8(ascii);
            view_ = long_;
            return;
        }
        short_[n] = static_cast<char16_t>(ascii[n]);
    }
    view_ = QStringView(short_, n);
}

QString mName(const QString &a, const QString &b)
{
    return a + QLatin1Char('.') + b;
}

QString mName(const QString &a, const QString &b, const QString &c)
{
    return mName(mName(a, b), c);
}

} // namespace orba
