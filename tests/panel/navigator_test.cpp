#include "panel/navigator.h"
#include "support/test_support.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QtTest/QTest>

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

class NavigatorTest : public ::testing::Test
{
protected:
    void SetUp() override { list.copyFrom(nodeFromJson(kEntries)); }
    static QAbstractButton *button(const panel::Navigator &navigator, const char *page)
    {
        return navigator.findChild<QAbstractButton *>(QStringLiteral("nav.") + QLatin1String(page));
    }
    orba::ModuleObject list{QStringLiteral("nav")};
};

} // namespace

TEST_F(NavigatorTest, SortsByCategoryThenOrderThenTimeOfRegistering)
{
    EXPECT_EQ(titles(panel::navigatorEntries(list.node())).join(QLatin1Char(' ')),
              QStringLiteral("first second late last other"));
}

TEST_F(NavigatorTest, AButtonOpensItsPageAndFollowsItsEntry)
{
    panel::Navigator navigator(&list);
    QSignalSpy chosen(&navigator, &panel::Navigator::pageChosen);
    QTest::mouseClick(button(navigator, "p.other"), Qt::LeftButton);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toString(), QStringLiteral("p.other"));

    EXPECT_EQ(button(navigator, "p.first"), nullptr);
    EXPECT_FALSE(button(navigator, "")->isEnabled());
    list.c(4)->set(nullptr, "nav", QStringLiteral("p.first"));
    ASSERT_NE(button(navigator, "p.first"), nullptr);
    EXPECT_TRUE(button(navigator, "p.first")->isEnabled());
    EXPECT_EQ(navigator.firstPage(), QStringLiteral("p.first"));
}

TEST_F(NavigatorTest, MarksTheOpenPageAlsoAfterARebuild)
{
    panel::Navigator navigator(&list);
    navigator.setCurrentPage(QStringLiteral("p.late"));
    EXPECT_TRUE(button(navigator, "p.late")->isChecked());
    list.c(1)->set(nullptr, "title", QStringLiteral("renamed"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(button(navigator, "p.late")->isChecked());
    EXPECT_FALSE(button(navigator, "p.other")->isChecked());
}
