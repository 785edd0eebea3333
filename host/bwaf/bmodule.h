#pragma once

#include "bwaf/center_widget.h"
#include "orba/managers.h"
#include "orba/module_object.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace bwaf {

class LifeCycle;

/// A module of the panel: a plug-in, or one of its pages (a page is a module with a widget and a parent
/// module).
///
/// Life cycle. The host constructs a plug-in's module through `bfactory()` and then calls, each exactly once
/// and in this order:
///
///     init, afterInit         every module exists, no page yet
///     setup, afterSetup       make pages, add them as sub-modules and to the centre widget
///     render, afterRender     just before the panel's window is shown for the first time
///     idle, afterIdle         when the event loop has nothing left to do for the first time
///     beforeDetach, detach    at the end, in reverse order; let go of what other modules own
///
/// A step runs on a module first and then on its sub-modules in the order of `addSubmodule`; the detaching
/// steps run on the sub-modules in reverse order and then on the module. A sub-module that comes later first
/// catches up with every step that its parent has passed: at the end of the step in which it was added, or at
/// once outside a step. After `detach` the page widgets in the centre widget end, then the modules,
/// sub-modules before their parent, and only then the data trees. A program without pages stops after
/// `afterInit` and still detaches.
///
/// GUI thread only.
class PALX_API BModule : public QObject
{
    Q_OBJECT

public:
    explicit BModule(QObject *parent = nullptr);
    ~BModule() override;

    virtual QString name() const;
    virtual void init();
    virtual void afterInit();
    virtual void setup();
    virtual void afterSetup();
    virtual void render();
    virtual void afterRender();
    virtual void idle();
    virtual void afterIdle();
    virtual void beforeDetach();
    virtual void detach();
    /// The page's top-level widget; null for a module that is no page. Owned by its parent widget.
    virtual QWidget *wgt();

    /// Builds the data tree `name` from a JSON template (a file or resource) and makes it `mobj()`. With
    /// `persistent` the tree's stored values are taken over and its changes are stored. A template that
    /// cannot be read is told to the operator; the tree then holds what is stored, and "version".
    void bindMobjJson(const QString &name, const QString &templatePath, bool persistent);
    /// The module's data tree; the empty node when none is bound. A page without a tree of its own answers
    /// its parent's.
    orba::ModuleObject *mobj() const;

    /// Takes ownership. Null, this module itself, an ancestor and a module that was added already are
    /// ignored.
    void addSubmodule(BModule *module);
    const QList<BModule *> &submodules() const { return submodules_; }
    /// The module whose sub-module this is; before that its parent object when that is a module; or null.
    BModule *parentModule() const;

private:
    friend class LifeCycle;
    QPointer<orba::ModuleObject> mobj_;
    QList<BModule *> submodules_;
    BModule *owner_ = nullptr; // whose list holds this module
    int passed_ = 0;           // number of steps taken, see LifeCycle
    bool inStep_ = false;
};

/// The module factories, by the plug-in's name. Exists once per process.
PALX_API orba::CreatorManager<BModule *, BModule *(QObject *)> &bfactory();

/// The panel's centre widget, where a module's pages go. Made when missing; owned by the host.
PALX_API CenterWidget *instantiatedCenterWidget(BModule *module);

} // namespace bwaf

using bwaf::bfactory;
