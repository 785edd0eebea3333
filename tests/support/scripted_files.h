#pragma once

#include "nexo/setting_manager.h"
#include "ui/xfile_dialog.h"

#include <QList>

/// Answers the plug-in's file dialog from a script, and remembers what was asked. Installs itself for its lifetime; without
/// answers left the dialog is refused.
class ScriptedFiles
{
public:
    explicit ScriptedFiles(QList<QStringList> answers = {}) : answers_(std::move(answers))
    {
        xFileDialog::setAnswers([this](const FileRequest &request) {
            asked.append(request);
            return answers_.isEmpty() ? QStringList() : answers_.takeFirst();
        });
    }
    ~ScriptedFiles() { xFileDialog::setAnswers(nullptr); }
    ScriptedFiles(const ScriptedFiles &) = delete;
    ScriptedFiles &operator=(const ScriptedFiles &) = delete;
    /// The answer to the next question, instead of what was left of the script.
    void answer(const QStringList &files) { answers_ = {files}; }

    QList<FileRequest> asked;

private:
    QList<QStringList> answers_;
};

/// A folder that stands in for a disk, for its lifetime.
class StandInDisk
{
public:
    explicit StandInDisk(const QString &folder) { set(folder); }
    ~StandInDisk() { set(QString()); }
    StandInDisk(const StandInDisk &) = delete;
    StandInDisk &operator=(const StandInDisk &) = delete;

private:
    static void set(const QString &folder)
    {
        nexo::SettingManager::instance()->setOverride(QStringLiteral("removable"), folder);
    }
};
