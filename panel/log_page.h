#pragma once

#include <QWidget>

#include <functional>
#include <memory>

namespace Ui {
class LogPage;
}

namespace panel {

class LogFilter;
class LogModel;

/// The panel's log page: the records that the host keeps in "quill.log.list" as a table, newest first, to be filtered by
/// level and text, exported to a file and cleared.
class LogPage : public QWidget
{
    Q_OBJECT

public:
    explicit LogPage(QWidget *parent = nullptr);
    ~LogPage() override;

    /// Asks the operator for a file and returns it, empty when refused; gets the folders to choose from and the name to
    /// propose, without suffix.
    using FileChooser = std::function<QString(const QStringList &folders, const QString &name)>;
    void setFileChooser(const FileChooser &chooser) { chooser_ = chooser; }

    /// How many records are shown.
    int count() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void setupTable();
    void fillLevels();
    void filter();
    void showCount();
    void showChosen();
    void keepPlace(int added);
    void exportRecords();
    void clearRecords();
    void retranslate();

    std::unique_ptr<Ui::LogPage> ui_;
    LogModel *records_;
    LogFilter *found_;
    FileChooser chooser_;
};

} // namespace panel
