#include "panel/navigator.h"
#include "support/test_support.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

const char *const kEntries = R"([
    {"title": "late", "category": "robot.pack", "icon": "", "order": -1, "nav": "p.late", "key": ""},
    {"title": "other", "category": "system", "icon": "", "order": 1, "nav": "p.other", "key": ""},
    {"title": "second", "category": "robot.pack", "icon": "", "order": 20, "nav": "p.second", "key": ""},
    {"title": "last", "category": "robot.pack", "icon": "", "order": -1, "nav": "p.last", "key": ""},
    {"title": "first", "category": "robot.pack", "icon": "", "order": 3, "nav": "", "key": ""}])";

QStringList titles(const QVector<panel::NavigatorEntry> &entries)
{
    QStringList list;
    for (const panel::NavigatorEntry &entry : entries)
        list.append(entry.title);
    return list;
}

} // namespace

TEST(Navigator, SortsItsEntriesAndFollowsThem)
{
    orba::ModuleObject list(QStringLiteral("nav"));
    list.copyFrom(nodeFromJson(kEntries));
    EXPECT_EQ(titles(panel::navigatorEntries(list.node())).join(QLatin1Char(' ')),
              QStringLiteral("first second late last other"));
    panel::Navigator navigator(&list);
    const auto button = [&navigator](const char *page) {
        return navigator.findChild<QAbstractButton *>(QStringLiteral("nav.") + QLatin1String(page));
    };
    navigator.setCurrentPage(QStringLiteral("p.late"));
    EXPECT_FALSE(button("")->isEnabled());
    EXPECT_EQ(navigator.firstPage(), QStringLiteral("p.second"));
    list.c(4)->set(nullptr, "nav", QStringLiteral("p.first"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(button("p.first"), nullptr);
    EXPECT_TRUE(button("p.first")->isEnabled());
    EXPECT_EQ(navigator.firstPage(), QStringLiteral("p.first"));
    EXPECT_TRUE(button("p.late")->isChecked()) << "also after it was made anew";
}
