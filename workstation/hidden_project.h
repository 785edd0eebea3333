#pragma once

#include "orba/module_object.h"

#include <QObject>

#include <map>
#include <string>

/// The hidden project: a folder of the controller workspace that keeps the project records, the global tools and the
/// global work objects, so that they stay with the robot when a panel is exchanged.
///
/// Folder: workspace / robot id / "palx_default". Files: "var.xml" (projects), and tools and work objects as "tool.json"
/// and "wobj.json" for controller software 2.3, as "tool.xml" and "wobj.xml" for other versions. Each is written whole
/// or not at all; one that cannot be read is set aside under a dated name and told to the operator.
namespace palx {

/// Writes what differs from what was last read or written. Does nothing while the robot id is unknown.
PALX_API void saveDataToHiddenProject();

/// Keeps the plugin node and the hidden project alike: reads once the robot id is known, where what the files hold wins
/// over the panel's store, and writes after every change. Lives as long as the plug-in's module.
class PALX_API HiddenProject : public QObject
{
    Q_OBJECT

public:
    explicit HiddenProject(QObject *parent = nullptr);
    ~HiddenProject() override;

    /// The keeper of this process, or null.
    static HiddenProject *current();
    /// The folder, empty while workspace or robot id are unknown.
    static QString folder();
    /// Reads the files into the plugin node.
    void load();
    /// Writes what differs.
    void save();

private:
    void followRobot();
    void saveIfChanged();
    void loadPart(const char *key);
    void savePart(const char *key);

    std::map<std::string, orba::Node> known_;  ///< what the files hold, by key of the plugin node
    std::map<std::string, orba::Node> failed_; ///< what could not be written
    QString folder_;                           ///< whose files were read
};

} // namespace palx
