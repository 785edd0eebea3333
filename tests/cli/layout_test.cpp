// `palx layout` and `palx template`: options in, items out. What is laid where is tested without the program.

#include "palx_run.h"

#include <gtest/gtest.h>

namespace {

using orba::Node;

PalxRun run(const char *options)
{
    return runPalx(QString::fromLatin1(options).split(QLatin1Char(' ')) +
                   QStringList{"--product", "200x150", "--pallet", "1000x800"});
}

/// "1: 98 198.5 0 Middle" for an item of the list.
QString item(const Node &root, int index)
{
    const Node &entry = *root.child(u"items")->at(index);
    return QStringLiteral("%1: %2 %3 %4 %5")
        .arg(entry.getInt(u"index"))
        .arg(entry.getDouble(u"h"))
        .arg(entry.getDouble(u"v"))
        .arg(entry.getInt(u"r"))
        .arg(entry.getString(u"direction"));
}

} // namespace

TEST(Layout, LaysWhatIsAskedFor)
{
    const struct
    {
        const char *options;
        int count;
        const char *first;
        const char *last;
    } cases[] = {
        {"layout --kind 0 --placement left", 20, "1: 98 801.5 0 TopRight", "20: 702 198.5 0 TopRight"},
        {"layout --kind 2 --placement right", 23, "1: 702 877 0 TopLeft", "23: 199 98 90 TopLeft"},
        {"layout --kind 0 --margins 50x60", 16, "1: 173.5 198.5 0 Middle", "16: 626.5 801.5 0 Middle"},
        {"layout", 23, "1: 98 123 0 Middle", "23: 601 902 90 Middle"}, // the kind with the most products
        {"template --type overlap --num-x 2 --num-y 3", 6, "1: 75 100 0 middle", "6: 377 301 0 middle"},
        {"template --type cross --num-x 3 --num-y1 5 --num-y2 3 --present 4", 13, "5: 75 100 0 middle",
         "17: 679 452 0 middle"},
        {"template --type clip --offset-x 10 --offset-y 20 --space-x 5 --space-y 7", 4, "1: 95 110 0 middle",
         "4: 120 290 90 middle"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.options);
        const PalxRun ran = run(c.options);
        ASSERT_EQ(ran.code, 0) << ran.err.constData();
        const Node root = parsed(ran.out);
        EXPECT_EQ(root.getInt(u"count"), c.count);
        ASSERT_EQ(root.child(u"items")->size(), c.count);
        EXPECT_EQ(item(root, 0), QLatin1String(c.first));
        EXPECT_EQ(item(root, c.count - 1), QLatin1String(c.last));
    }
}

TEST(Layout, TheJsonIsWhatIsDocumented)
{
    const Node root = parsed(run("layout --kind 1 --orient 7 --placement right").out);
    EXPECT_EQ(childNames(root), (QStringList{"placement", "kind", "name", "count", "area_used", "over_edge",
                                             "refusal", "items", "kinds"}));
    EXPECT_EQ(*root.find(u"items.#0"), parsed(R"({"index": 1, "h": 601.0, "v": 877.5, "w": 150, "height": 200,
        "r": 90, "orient": 7, "dx": 100.0, "dy": 100.0, "dz": 0.0, "direction": "TopLeft"})"));
    EXPECT_EQ(*root.find(u"kinds.#2"),
              parsed(R"({"kind": 2, "name": "Crisscross", "count": 23, "area_used": 0.8625,
        "over_edge": 0.0, "refusal": ""})"));
}

TEST(Layout, RefusesWithTheReason)
{
    const struct
    {
        const char *command, *sizes;
        int code;
        const char *reason; ///< part of the message
    } cases[] = {
        {"layout --kind 0", "50x40 1000x800", 1, "Wobj number is greater than 200\n"},
        {"template --type overlap --num-x 1 --num-y 6", "200x150 1000x800", 1,
         "Wobj is beyond the pallet's y edge\n"},
        {"template --type star", "200x150 1000x800", 2, "--type"},
        {"template --type clip --num-x 100", "200x150 1000x800", 2, "--num-x"},
        {"layout", "200 1000x800", 2, "--product"},
        {"layout", "200x0 1000x800", 2, "--product"},
        {"layout", "200xnan 1000x800", 2, "--product"},
        {"layout", "200x150 1e9x800", 2, "--pallet"},
        {"layout --spacing -1", "200x150 1000x800", 2, "--spacing"},
        {"layout --margins 5", "200x150 1000x800", 2, "--margins"},
    };
    for (const auto &c : cases) {
        const QString sizes = QString::fromLatin1(c.sizes);
        const PalxRun ran =
            runPalx(QString::fromLatin1(c.command).split(' ') +
                    QStringList{"--product", sizes.section(' ', 0, 0), "--pallet", sizes.section(' ', 1)});
        EXPECT_EQ(ran.code, c.code) << c.command << c.sizes;
        EXPECT_TRUE(ran.err.contains(c.reason)) << ran.err.constData();
        EXPECT_EQ(ran.out.isEmpty(), c.code == 2) << ran.out.constData();
        EXPECT_TRUE(ran.out.isEmpty() || parsed(ran.out).child(u"items")->size() == 0);
    }
}
