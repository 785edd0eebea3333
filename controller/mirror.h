#pragma once

#include "orba/node.h"

#include <QStringList>

#include <deque>

namespace controller {

/// The tree that the panel sees, and what the panel was told of it.
class Mirror
{
public:
    explicit Mirror(orba::Node *tree) : tree_(tree) {}

    struct Change
    {
        QString path;
        orba::Node value;
    };

    /// The panel is told everything: one entry {"path", "value"} for each mirrored subtree.
    orba::Node tellAll();
    /// Puts into the tree what the panel wrote, so that it is not told to the panel again. False, with nothing changed,
    /// when there is no such place.
    bool write(const QString &path, orba::Node &payload);
    /// Tells the node at this path with the next changes, whether it differs or not.
    void force(const QString &path) { forced_.append(path); }
    /// The smallest subtrees that differ from what the panel was told; it counts as told then. The robot is one subtree,
    /// so that pose, joints and progress belong to one moment.
    std::deque<Change> takeChanges();

private:
    void compare(const orba::Node &tree, orba::Node *told, const QString &path, std::deque<Change> *changes);

    orba::Node *tree_;
    orba::Node told_;
    QStringList forced_;
};

} // namespace controller
