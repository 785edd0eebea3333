#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ExportDialog;
}

namespace panel {

/// Asks for a file to write: one of a few folders, a name, a kind. Made for fingers; an existing file is replaced after a
/// question only.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `name` without suffix. The first folder is chosen.
    ExportDialog(const QStringList &folders, const QString &name, QWidget *parent = nullptr);
    ~ExportDialog() override;

    /// Folder, name and the suffix of the kind.
    QString file() const;
    void accept() override;

private:
    QString problem() const;
    void showFile();

    std::unique_ptr<Ui::ExportDialog> ui_;
};

} // namespace panel
