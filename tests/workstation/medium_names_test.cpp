#include "workstation/medium_names.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

TEST(MediumNames, AFileSystemKeepsOnlyWhatItCan)
{
    const QString latin = QStringLiteral("x");
    const QString letter = QString::fromUtf8("п"); // two bytes
    const QString face = QString::fromUtf8("😀");   // two units, four bytes
    const struct
    {
        QString name;
        const char *onFat; // what the refusal holds; null: the name is kept
        const char *onLinux;
    } cases[] = {{QStringLiteral("pallet.xml"), nullptr, nullptr},
                 {QString::fromUtf8("上海 паллета №1.xml"), nullptr, nullptr},
                 {QStringLiteral("a'b&c;d!e$f#g%h(i)+,-=@[]^_`{}~.xml"), nullptr, nullptr},
                 {QStringLiteral("a:b"), "with :", nullptr},
                 {QStringLiteral("a\\b"), "with \\", nullptr},
                 {QStringLiteral("a|b"), "with |", nullptr},
                 {QStringLiteral("a/b"), "with /", "with /"},
                 {QStringLiteral("a."), "dot or a blank", nullptr},
                 {QStringLiteral("a "), "dot or a blank", nullptr},
                 {QStringLiteral("con"), "named con", nullptr},
                 {QStringLiteral("Com1.xml"), "named Com1.xml", nullptr},
                 {QStringLiteral("com0.xml"), nullptr, nullptr},
                 {QString(), "needs a name", "needs a name"},
                 {QStringLiteral(".xml"), "begin with a dot", "begin with a dot"},
                 {QStringLiteral("a\nb"), "cannot be seen", "cannot be seen"},
                 {latin.repeated(255), nullptr, nullptr},
                 {latin.repeated(256), "256 of 255 characters", "256 of 255 bytes"},
                 {letter.repeated(127), nullptr, nullptr},
                 {letter.repeated(128), nullptr, "256 of 255 bytes"},
                 {letter.repeated(256), "256 of 255 characters", "512 of 255 bytes"},
                 {face.repeated(128), "256 of 255 characters", "512 of 255 bytes"}};
    for (const auto &c : cases) {
        for (const char *system : {"vfat", "fuseblk", "ext4", ""}) {
            const bool isLinux = !*system || QByteArray(system) == "ext4";
            const char *part = isLinux ? c.onLinux : c.onFat;
            const QString refusal = palx::nameRefusal(c.name, QLatin1String(system));
            EXPECT_EQ(refusal.isEmpty(), !part) << c.name << " on " << system << ": " << refusal;
            EXPECT_TRUE(refusal.contains(QLatin1String(part)))
                << c.name << " on " << system << ": " << refusal;
        }
    }
}

TEST(MediumNames, AFilterCompletesANameThatItDoesNotMatch)
{
    const struct
    {
        const char *filter;
        const char *name;
        const char *completed;
    } cases[] = {{"XML (*.xml);;All files (*)", "pallet", "pallet.xml"},
                 {"Archives (zip) (*.zip;*.ZIP)", "a", "a.zip"},
                 {"XML (*.xml)", "pallet.XML", "pallet.XML"},
                 {"XML (*.xml)", "pallet.txt", "pallet.txt.xml"},
                 {"XML (*.xml)", "pallet.", "pallet..xml"},
                 {"XML (*.xml)", "", ""},
                 {"Pictures (*.png *.jpg)", "a", "a.png"},
                 {"Tar (*.tar.gz)", "a", "a.tar.gz"},
                 {"", "a", "a"},
                 {"Letters ([a-c].x)", "q", "q"}};
    for (const auto &c : cases) {
        const palx::FileFilter filter = palx::parseFilters(QLatin1String(c.filter)).first();
        EXPECT_EQ(filter.completed(QString::fromUtf8(c.name)), QString::fromUtf8(c.completed))
            << c.filter << " on " << c.name;
    }
}
