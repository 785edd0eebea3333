// A store that cannot write, or finds what it must not trust: told, nothing lost, nothing wrong taken for right.

#include "formats/obstacles.h"
#include "formats/store_fixture.h"
#include "support/test_support.h"

#include <QLockFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <sys/wait.h>

using orba::Name;
using orba::Node;

namespace {

QByteArray bytesOf(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << file;
    return source.readAll();
}

void putBytes(const QString &file, const QByteArray &bytes)
{
    QFile target(file);
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    target.write(bytes);
}

class StoreTroubleTest : public StoreFixture
{
protected:
    /// A store with that many recipes, saved and closed.
    void prepare(int stacks)
    {
        ASSERT_TRUE(start());
        for (int i = 0; i < stacks; ++i)
            addStack(i);
        saved_ = tree();
        stop();
    }
    /// A statement in the closed database.
    void alter(const QString &sql) const
    {
        {
            QSqlDatabase database =
                QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("alter"));
            database.setDatabaseName(databaseFile());
            ASSERT_TRUE(database.open());
            QSqlQuery query(database);
            ASSERT_TRUE(query.exec(sql));
        }
        QSqlDatabase::removeDatabase(QStringLiteral("alter"));
    }
    void expectToldOnce(const QStringList &parts) const
    {
        EXPECT_EQ(store_->problems().size(), 1) << problems();
        for (const QString &part : parts)
            EXPECT_TRUE(problems().contains(part)) << part << " in " << problems();
    }
    /// Recipes that are there are as they were saved.
    void expectNoWrongRecipe() const
    {
        for (int i = 0; i < stacks()->size(); ++i) {
            const auto number = static_cast<int>(stacks()->at(i)->getInt(u"height", -1));
            const Node *original = saved_.find(QStringLiteral("stacks.#%1").arg(number));
            ASSERT_NE(original, nullptr);
            ASSERT_EQ(*stacks()->at(i), *original);
        }
    }
    Node saved_;
};

// ---------------------------------------------------------------- no writing

TEST_F(StoreTroubleTest, AFullDiskIsToldOnceAndSavedLater)
{
    ASSERT_TRUE(start());
    addStack(1);
    ASSERT_GT(savedRows(), 0);
    stacks()->at(0)->ensure(u"note")->setString(QString(300000, QLatin1Char('x')));
    {
        const FullDisk full(100000);
        QString why;
        EXPECT_FALSE(store_->save(&why));
        EXPECT_FALSE(store_->isWritable());
        addStack(2);
        EXPECT_FALSE(store_->save());
        expectToldOnce({data(), QStringLiteral("cannot be written"), QStringLiteral("free space")});
        EXPECT_EQ(why, problems());
    }
    const Node before = tree();
    QSignalSpy saved(store_.get(), &host::Store::saved);
    ASSERT_TRUE(waitUntil([&] { return saved.count() > 0; }, host::Store::kRetryMs + 3000)); // by itself
    EXPECT_TRUE(store_->isWritable());
    restart();
    EXPECT_TRUE(tree() == before);
}

TEST_F(StoreTroubleTest, AReadOnlyFolderIsReadAndSavedLater)
{
    prepare(3);
    {
        const ReadOnlyFolder readOnly(data());
        ASSERT_TRUE(start());
        EXPECT_TRUE(tree() == saved_);
        addStack(3);
        EXPECT_FALSE(store_->save());
        EXPECT_FALSE(store_->save());
        expectToldOnce(
            {data(), QStringLiteral("cannot be written"), QStringLiteral("Make the folder writable")});
    }
    const Node before = tree();
    EXPECT_EQ(savedRows(), 1) << "the rows that were read are still known";
    restart();
    EXPECT_TRUE(tree() == before);
    EXPECT_EQ(filesSetAside(), QStringList());
}

// ---------------------------------------------------------------- one process

TEST_F(StoreTroubleTest, AFolderInUseIsRefusedAndNamesItsHolder)
{
    prepare(1);
    const QByteArray before = bytesOf(databaseFile());
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t holder = ::fork();
    if (holder == 0) {
        QLockFile lock(data() + QStringLiteral("/store.lock"));
        const char done = lock.tryLock(0) ? 'y' : 'n';
        if (::write(ready[1], &done, 1) == 1)
            ::pause();
        _exit(1);
    }
    char done = 0;
    ASSERT_EQ(::read(ready[0], &done, 1), 1);
    ASSERT_EQ(done, 'y');
    host::Store refused;
    QString why;
    EXPECT_FALSE(refused.open(data(), &why));
    EXPECT_TRUE(why.contains(data()) && why.contains(QString::number(holder))) << why;
    EXPECT_EQ(bytesOf(databaseFile()), before);
    ASSERT_EQ(::kill(holder, SIGKILL), 0);
    ASSERT_EQ(::waitpid(holder, nullptr, 0), holder);
    ::close(ready[0]);
    ::close(ready[1]);
    EXPECT_TRUE(start()) << "the lock of a dead process is none";
    EXPECT_TRUE(tree() == saved_);
}

/// A power cut may leave a lock file that is empty or names a process number that is ours by now.
TEST_F(StoreTroubleTest, ALockFileThatNobodyHoldsIsNone)
{
    prepare(1);
    const QString lockFile = data() + QStringLiteral("/store.lock");
    QByteArray ours;
    {
        QLockFile lock(lockFile);
        ASSERT_TRUE(lock.tryLock(0));
        ours = bytesOf(lockFile);
    }
    for (const QByteArray &content : {QByteArray(), ours, QByteArray("damaged")}) {
        putBytes(lockFile, content);
        ASSERT_TRUE(start());
        EXPECT_TRUE(tree() == saved_);
        stop();
    }
}

// ---------------------------------------------------------------- damage

TEST_F(StoreTroubleTest, WhatIsNoStoreIsSetAside)
{
    prepare(2);
    const QByteArray whole = bytesOf(databaseFile());
    const struct
    {
        const char *what;
        std::function<void()> spoil;
    } kCases[] = {
        {"not a database", [this] { putBytes(databaseFile(), QByteArray(9000, 'x')); }},
        {"no store of this panel", [this] { putBytes(databaseFile(), QByteArray()); }},
        {"newer version", [this] { alter(QStringLiteral("PRAGMA user_version = 2")); }},
        {"checksum of its manifest",
         [this] { alter(QStringLiteral("UPDATE manifest SET generation = 1000")); }},
        {"instead of", [this] { alter(QStringLiteral("DELETE FROM entry WHERE parent <> 0 AND id > 9")); }},
        {"checksum of entry",
         [this] { alter(QStringLiteral("UPDATE text SET json = 'null' WHERE id = 1")); }},
    };
    for (const auto &broken : kCases) {
        SCOPED_TRACE(broken.what);
        putBytes(databaseFile(), whole);
        broken.spoil();
        ASSERT_TRUE(start());
        expectToldOnce({data(), QLatin1String(broken.what), QStringLiteral("was kept as")});
        EXPECT_EQ(filesSetAside().size(), 1);
        expectNoWrongRecipe();
        addStack(5);
        const Node before = tree();
        restart();
        EXPECT_EQ(problems(), QString());
        EXPECT_TRUE(tree() == before);
        stop();
        for (const QString &aside : filesSetAside())
            EXPECT_TRUE(QFile::remove(data() + QLatin1Char('/') + aside));
    }
}

TEST_F(StoreTroubleTest, WholeRowsOfADamagedStoreAreTakenOver)
{
    prepare(5);
    alter(
        QStringLiteral("UPDATE text SET json = CAST(replace(CAST(json AS TEXT), 'height', 'hEight') AS BLOB) "
                       "WHERE CAST(json AS TEXT) LIKE '%Короб 2%'"));
    ASSERT_TRUE(start());
    EXPECT_EQ(stacks()->size(), 4);
    expectNoWrongRecipe();
    EXPECT_TRUE(problems().contains(QStringLiteral("entries were whole and were taken over"))) << problems();
    saved_ = tree();
    restart();
    EXPECT_TRUE(tree() == saved_);
}

/// Flipping bits and cutting off anywhere gives what was saved, or a message and nothing that was not saved.
TEST_F(StoreTroubleTest, EveryFewBytesSpoilt)
{
    prepare(3);
    const QByteArray whole = bytesOf(databaseFile());
    int told = 0;
    const auto expectToldOrWhole = [&](const QByteArray &spoilt) {
        putBytes(databaseFile(), spoilt);
        ASSERT_TRUE(start());
        expectNoWrongRecipe();
        const bool isTold = !store_->problems().isEmpty();
        ASSERT_TRUE(isTold || tree() == saved_);
        ASSERT_EQ(filesSetAside().isEmpty(), !isTold) << problems();
        told += isTold ? 1 : 0;
        stop();
        ASSERT_TRUE(QDir(data()).removeRecursively());
        ASSERT_TRUE(QDir().mkpath(data()));
    };
    constexpr int kStep = 29; // odd, and other bytes of a row in every page
    for (int at = 0; at < whole.size(); at += kStep) {
        if (whole[at] == 0)
            continue; // most of the file is free space
        SCOPED_TRACE(at);
        QByteArray spoilt = whole;
        spoilt[at] = static_cast<char>(spoilt[at] ^ (1 << (at % 8)));
        expectToldOrWhole(spoilt);
        ASSERT_FALSE(HasFatalFailure());
    }
    EXPECT_GT(std::exchange(told, 0), 10);
    int cuts = 0;
    for (int length = 0; length < whole.size(); length += 2999, ++cuts)
        expectToldOrWhole(whole.left(length));
    EXPECT_EQ(told, cuts);
}

} // namespace
