#pragma once

#include "orba/module_object.h"

#include <QObject>

struct XReply;

namespace host {
class ControllerLink;
}

namespace nexo {

/// The controller as the panel sees it: whether it is there, and requests with named items that are filled
/// first and executed then. GUI thread.
class PALX_API ControllerManager : public QObject
{
    Q_OBJECT

public:
    static ControllerManager *instance();

    bool rcConnected() const;
    /// The node of a request, made when missing; its children are the items sent by `execRequest`. It lives
    /// until the link ends.
    orba::ModuleObject *request(const QString &name);
    /// One item of a request, made when missing.
    orba::ModuleObject *cmdItemMobj(const QString &request, const QString &item);
    /// Sends the request with its items and waits; see XService for the timeout.
    XReply execRequest(const QString &name, int timeoutMs = -1);

Q_SIGNALS:
    void rcConnectedChanged(bool connected);

private:
    friend class host::ControllerLink;
    ControllerManager() = default;
    void forgetRequests();

    orba::ModuleObject requests_;
};

} // namespace nexo
