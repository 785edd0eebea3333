#include "nexo/setting_manager.h"
#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class SettingManagerTest : public ::testing::Test
{
protected:
    void TearDown() override
    {
        qunsetenv("PALX_SETTING_LANGUAGE");
        settings.setOverride(key, QString());
        settings.useFile(QString());
    }
    QString write(const QByteArray &text) const
    {
        const QString name = folder.filePath(QStringLiteral("settings.json"));
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return name;
    }
    static QByteArray content(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    const QString key = QStringLiteral("language");
    nexo::SettingManager &settings = *nexo::SettingManager::instance();
};

} // namespace

TEST_F(SettingManagerTest, OverrideBeatsEnvironmentBeatsFileBeatsDefault)
{
    EXPECT_EQ(settings.getStr(key, QStringLiteral("default")), QStringLiteral("default"));
    ASSERT_TRUE(settings.useFile(write(R"({"language": "cn"})")));
    EXPECT_EQ(settings.getStr(key, QStringLiteral("default")), QStringLiteral("cn"));
    qputenv("PALX_SETTING_LANGUAGE", "ru");
    EXPECT_EQ(settings.getStr(key), QStringLiteral("ru"));
    settings.setOverride(key, QStringLiteral("jp"));
    EXPECT_EQ(settings.getStr(key), QStringLiteral("jp"));
    settings.setOverride(key, QString());
    EXPECT_EQ(settings.getStr(key), QStringLiteral("ru"));
}

TEST_F(SettingManagerTest, TellsOnlyWhenTheEffectiveValueChanges)
{
    QSignalSpy changed(&settings, &nexo::SettingManager::changed);
    settings.setStr(key, QStringLiteral("cn"));
    settings.setStr(key, QStringLiteral("cn"));
    EXPECT_EQ(changed.size(), 1);
    settings.setOverride(key, QStringLiteral("ru"));
    settings.setStr(key, QStringLiteral("kr")); // hidden by the override
    ASSERT_EQ(changed.size(), 2);
    EXPECT_EQ(changed.at(1), QVariantList({key, QStringLiteral("ru")}));
    settings.setOverride(key, QString());
    ASSERT_EQ(changed.size(), 3);
    EXPECT_EQ(changed.at(2), QVariantList({key, QStringLiteral("kr")}));
}

TEST_F(SettingManagerTest, KeepsWhatWasSetInTheFile)
{
    const QString name = folder.filePath(QStringLiteral("settings.json"));
    ASSERT_TRUE(settings.useFile(name));
    settings.setStr(key, QStringLiteral("kr"));
    settings.setOverride(QStringLiteral("touch"), QStringLiteral("true"));
    ASSERT_TRUE(settings.useFile(QString()));
    EXPECT_EQ(settings.getStr(key), QString());
    ASSERT_TRUE(settings.useFile(name));
    EXPECT_EQ(settings.getStr(key), QStringLiteral("kr"));
    EXPECT_FALSE(content(name).contains("touch"));
    settings.setOverride(QStringLiteral("touch"), QString());
}

TEST_F(SettingManagerTest, SetsADamagedFileAsideAndSaysWhere)
{
    const QByteArray damaged[] = {"", "[]", "\xff\xfe", R"({"language": {"a": 1}})",
                                  QByteArray(2 * 1024 * 1024, ' ')};
    for (const QByteArray &text : damaged) {
        const QString name = write(text);
        QString error;
        EXPECT_FALSE(settings.useFile(name, &error)) << text.left(40).constData();
        EXPECT_TRUE(error.contains(name)) << error;
        EXPECT_FALSE(QFile::exists(name)) << text.left(40).constData();
        const QStringList aside = QDir(folder.path()).entryList(QDir::Files);
        ASSERT_EQ(aside.size(), 1) << text.left(40).constData();
        EXPECT_EQ(content(folder.filePath(aside.first())), text);
        QFile::remove(folder.filePath(aside.first()));
    }
}

TEST_F(SettingManagerTest, TellsWhenTheFileCannotBeSavedAndKeepsTheValue)
{
    ScriptedPresenter presenter;
    settings.useFile(folder.filePath(QStringLiteral("none/settings.json")));
    settings.setStr(key, QStringLiteral("cn"));
    EXPECT_EQ(settings.getStr(key), QStringLiteral("cn"));
    ASSERT_EQ(presenter.notices.size(), 1);
    EXPECT_TRUE(presenter.notices.first().startsWith(QStringLiteral("error: Cannot save the settings file")));
}
