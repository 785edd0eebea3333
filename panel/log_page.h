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

    /// Asks the operator for a file's name and returns it, empty when refused; gets the name to propose.
    using FileChooser = std::function<QString(const QString &proposed)>;
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
    QString chooseFile(const QString &proposed);
    void exportRecords();
    void clearRecords();
    void retranslate();

    std::unique_ptr<Ui::LogPage> ui_;
    LogModel *records_;
    LogFilter *found_;
    FileChooser chooser_;
};

} // namespace panel
