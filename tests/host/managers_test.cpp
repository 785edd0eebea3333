#include "bwaf/bmodule.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace {

using Adders = orba::CreatorManager<int, int(int)>;

QStringList registeredFrom(int start)
{
    QStringList lines;
    for (const orba::Registration &entry : orba::registrations().mid(start))
        lines.append(QStringLiteral("%1 %2 %3")
                         .arg(entry.registry, entry.key,
                              entry.taken ? QStringLiteral("taken") : QStringLiteral("known")));
    return lines;
}

} // namespace

TEST(Managers, KeepTheFirstFunctionOfAKeyAndTheOrderOfKeys)
{
    Adders adders(QStringLiteral("adders"));
    EXPECT_TRUE(adders.regist(QStringLiteral("z"), [](int n) { return n + 1; }));
    EXPECT_TRUE(adders.regist(QStringLiteral("a"), [](int n) { return n + 2; }));
    EXPECT_FALSE(adders.regist(QStringLiteral("z"), [](int n) { return n + 100; }));
    EXPECT_EQ(adders.keys(), QStringList({QStringLiteral("z"), QStringLiteral("a")}));
    EXPECT_EQ(adders.create(QStringLiteral("z"), 5), 6);
    EXPECT_EQ(adders.create(QStringLiteral("a"), 5), 7);
}

TEST(Managers, AnswerADefaultForAnUnknownKey)
{
    const Adders adders(QStringLiteral("adders"));
    EXPECT_EQ(adders.create(QStringLiteral("none"), 5), 0);
    EXPECT_FALSE(adders.creator(QStringLiteral("none")));
    EXPECT_EQ(bfactory().create(QStringLiteral("none"), nullptr), nullptr);
}

TEST(Managers, RememberEveryRegistrationOfTheProcessInOrder)
{
    const int start = orba::registrations().size();
    Adders other(QStringLiteral("other"));
    other.regist(QStringLiteral("one"), [](int n) { return n; });
    orba::versionManager().regist(QStringLiteral("test.part"), [] { return 14; });
    orba::versionManager().regist(QStringLiteral("test.part"), [] { return 14; });
    orba::pluginManager().regist(QStringLiteral("test"), [] { return 11; });
    EXPECT_EQ(registeredFrom(start), QStringList({QStringLiteral("other one taken"),
                                                  QStringLiteral("versionManager test.part taken"),
                                                  QStringLiteral("versionManager test.part known"),
                                                  QStringLiteral("pluginManager test taken")}));
    EXPECT_EQ(orba::versionManager().create(QStringLiteral("test.part")), 14);
}
