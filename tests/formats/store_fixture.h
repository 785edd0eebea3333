#pragma once

#include "core/store.h"
#include "core/tree_binder.h"
#include "orba/node.h"
#include "orba/tree_registry.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// A panel with one module: data folder, template, store and tree, which may be stopped and started like a process.
class StoreFixture : public ::testing::Test
{
protected:
    StoreFixture()
    {
        // Tests of rights look at it as another user.
        QFile::setPermissions(folder_.path(), QFile::permissions(folder_.path()) | QFile::ReadGroup |
                                                  QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
        writeTemplate(
            "\xef\xbb\xbf{\"default\": {\"name\": \"\", \"height\": 150}, \"pallets\": [{\"name\": \"EU\"}],"
            " \"trigger\": {\"refresh\": null, \"reset\": null}, \"stacks\": [], \"projects\": {}}");
    }
    ~StoreFixture() override { stop(); }

    /// Opens the store and binds the module; false when the store refused.
    bool start()
    {
        store_ = std::make_unique<host::Store>();
        QString why;
        const bool isOpened = store_->open(data(), &why);
        EXPECT_EQ(isOpened, why.isEmpty());
        bindError_.clear();
        host::bindTree(kModule, templateFile(), true, &bindError_);
        return isOpened;
    }
    /// Ends the store, which saves, and then the tree.
    void stop()
    {
        store_.reset();
        if (orba::TreeRegistry::instance().module(kModule))
            orba::TreeRegistry::instance().removeModule(kModule);
    }
    void restart()
    {
        stop();
        ASSERT_TRUE(start());
    }
    orba::Node &tree() const { return *orba::TreeRegistry::instance().module(kModule); }
    orba::Node *stacks() const { return tree().find(u"stacks"); }
    /// Adds a recipe with a few values and numbers; equal numbers give equal recipes.
    orba::Node *addStack(int number) const
    {
        const double place[] = {number * 0.1, 1.0 / (number + 3), -0.0};
        orba::Node *stack = stacks()->add();
        stack->reset(orba::Node::Kind::Map);
        stack->add(orba::Name(u"name"))->setString(QStringLiteral("Короб %1").arg(number));
        stack->add(orba::Name(u"height"))->setInt(number);
        stack->ensure(u"points.put.#0.#0.put_p.trans")->setDoubles(place, 3);
        return stack;
    }
    void writeTemplate(const QByteArray &json) const
    {
        QFile file(templateFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
    }
    QString data() const { return folder_.filePath(QStringLiteral("data")); }
    QString databaseFile() const { return data() + QStringLiteral("/store.sqlite"); }
    QString templateFile() const { return folder_.filePath(QStringLiteral("template.json")); }
    /// Saves and tells how many rows were written.
    int savedRows() const
    {
        QSignalSpy saved(store_.get(), &host::Store::saved);
        EXPECT_TRUE(store_->save());
        return saved.isEmpty() ? 0 : saved.first().first().toInt();
    }
    QString problems() const { return store_->problems().join(QLatin1Char('\n')); }
    QStringList filesSetAside() const
    {
        return QDir(data()).entryList({QStringLiteral("store.sqlite.damaged-*")}, QDir::Files);
    }

    const QString kModule = QStringLiteral("test_module");
    QTemporaryDir folder_;
    std::unique_ptr<host::Store> store_;
    QString bindError_;
};
