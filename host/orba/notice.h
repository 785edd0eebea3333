#pragma once

#include "orba/module_object.h"

#include <vector>

namespace orba {

/// Lets a rule rewrite a tree in its storage and tells the handles in it afterwards, once each.
///
/// At construction it notes the values of all nodes with a handle at or below `top`; at destruction every handle whose
/// value became another sends `changed`, then every handle whose children came, went or were exchanged sends
/// `structureChanged`, both in tree order. Handles that ended meanwhile are left out. GUI thread.
class PALX_API NoticeOfChanges
{
public:
    explicit NoticeOfChanges(Node &top, QObject *sender = nullptr);
    ~NoticeOfChanges();
    NoticeOfChanges(const NoticeOfChanges &) = delete;
    NoticeOfChanges &operator=(const NoticeOfChanges &) = delete;

private:
    struct Held;
    void collect(Node &node);
    std::vector<Held> held_;
    QObject *sender_;
};

} // namespace orba
