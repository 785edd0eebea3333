#pragma once

#include "bwaf/bmodule.h"
#include "orba/module_object.h"
#include "ui/message_bar.h"
#include "ui/recipe_frame.h"
#include "ui/stackhomepage.h"
#include "ui/stacksetuppage.h"

#include <QPushButton>
#include <QTranslator>

#include <memory>
#include <stdexcept>

/// A child of a dialog or page; a missing one fails the test.
template <typename Widget> Widget *partOf(const QWidget &parent, const char *name)
{
    auto *found = parent.findChild<Widget *>(QLatin1String(name));
    if (!found)
        throw std::out_of_range(name);
    return found;
}

/// The plug-in's tree as a module of the panel, built from the template, without the panel and its store.
class PluginTree
{
public:
    PluginTree();
    ~PluginTree();
    PluginTree(const PluginTree &) = delete;
    PluginTree &operator=(const PluginTree &) = delete;

    /// A recipe with patterns "A" (two products) and "B" (one), layers A, B and taught points.
    orba::ModuleObject *addRecipe(const char *name);
};

/// Both pages in a centre widget, joined as the plug-in's module joins them.
class Pages
{
public:
    Pages();
    ~Pages();
    /// Shows a recipe on the set-up page, with one of its frames.
    void open(const char *recipe, int frame = 0);
    /// A child of one of the pages or of a dialog that was opened from them.
    template <typename T> T *field(const char *name) const
    {
        T *found = center.findChild<T *>(QLatin1String(name));
        return found;
    }

    PluginTree tree;
    bwaf::CenterWidget center;
    bwaf::BModule module;
    StackHomePage *home;
    StackSetupPage *setup;
};

/// The set-up page with the recipe "Box" open.
struct OpenRecipe : Pages
{
    enum Frame { Product, Pallet, Patterns, Layers, Calibration, Waypoints, Points };

    explicit OpenRecipe(int frame = Product)
    {
        tree.addRecipe("Box");
        open("Box", frame);
    }
    orba::ModuleObject *stack() const { return setup->stack(); }
    /// A child of one of the frames; a missing one fails the test.
    template <typename T> T *at(int frame, const char *name) const
    {
        return partOf<T>(*setup->frames().at(frame), name);
    }
    /// A child of the page.
    template <typename T> T *part(const char *name) const { return partOf<T>(*setup->wgt(), name); }
    QString message() const { return setup->wgt()->findChild<MessageBar *>()->text(); }
    bool hasUndo() const { return part<QPushButton>("btnUndo")->isEnabled(); }
};

/// How often a trigger was raised since it was made.
class TriggerCount
{
public:
    explicit TriggerCount(const char *trigger);
    int take();

private:
    QObject context_;
    int count_ = 0;
};

/// A language whose texts are 40 % longer than ours.
class LongLanguage : public QTranslator
{
public:
    LongLanguage();
    ~LongLanguage() override;
    QString translate(const char *context, const char *text, const char *hint, int n) const override;
    bool isEmpty() const override { return false; }
};

/// Types a value into a spin box and leaves it, as an operator does.
template <typename Spin, typename Value> void enter(Spin *field, Value value)
{
    field->setValue(value);
    Q_EMIT field->editingFinished();
}
