#pragma once

#include "orba/node.h"
#include "project/rules/template_exchange.h"
#include "project/rules/work_folder.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace palx {

/// What an import did, one change after the other, to be undone until the next one or the end of the session.
class ImportUndo : public QObject
{
    Q_OBJECT

public:
    /// An imported project is in its place now.
    struct Change
    {
        QString name;
        std::unique_ptr<WorkFolder>
            kept; ///< holds "project", the one that was replaced; null: there was none
        std::optional<orba::Node> recordBefore; ///< none: there was none
    };

    ImportUndo();

    /// That of the last import; null for none. It ends with the plug-in's node.
    static ImportUndo *last();
    /// Makes this the last one. `last` owns it then.
    static void keep(std::unique_ptr<ImportUndo> undo);

    /// Whether the robot is the one whose projects were imported.
    bool isOfThisRobot() const;
    /// The name of a work folder for what is replaced next; another than any that is kept.
    QString nextKept();
    void note(Change change) { changes_.push_back(std::move(change)); }
    TemplateChange &templates() { return templates_; }
    /// What was made, for the operator: projects by their names, and templates.
    QStringList names() const;
    /// Undoes the changes, last one first. What cannot be undone stays, after the message.
    bool undo();

private:
    QString robotFolder_;
    int generation_ = 0; ///< another than that of the import before
    int kept_ = 0;
    std::vector<Change> changes_;
    TemplateChange templates_;
};

} // namespace palx
