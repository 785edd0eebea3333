#pragma once

#include "core/store.h"
#include "core/tree_binder.h"
#include "orba/node.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// A panel with one module: data folder, template, store and tree, which may be stopped and started like a process.
class StoreFixture : public ::testing::Test
{
protected:
    StoreFixture();
    ~StoreFixture() override;

    /// Opens the store and binds the module; false when the store refused.
    bool start();
    /// Ends the store, which saves, and then the tree.
    void stop();
    void restart();
    orba::Node &tree() const;
    orba::Node *stacks() const { return tree().find(u"stacks"); }
    /// Adds a recipe with a few values and numbers; equal numbers give equal recipes.
    orba::Node *addStack(int number) const;
    void writeTemplate(const QByteArray &json) const;
    QString data() const { return folder_.filePath(QStringLiteral("data")); }
    QString databaseFile() const { return data() + QStringLiteral("/store.sqlite"); }
    QString templateFile() const { return folder_.filePath(QStringLiteral("template.json")); }
    /// Saves and tells how many rows were written.
    int savedRows() const;
    QString problems() const { return store_->problems().join(QLatin1Char('\n')); }
    QStringList filesSetAside() const;

    QTemporaryDir folder_;
    std::unique_ptr<host::Store> store_;
    QString bindError_;
};
