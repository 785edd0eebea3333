#pragma once

#include <QListWidget>
#include <QWidget>

class QLabel;

namespace panel {

/// The panel's log page: what was reported since the start, newest first.
class NoticePage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kMaxNotices = 500; // as many as the host keeps records

    explicit NoticePage(QWidget *parent = nullptr);
    /// `level` is "error", "warning" or "info".
    void add(const QString &level, const QString &text);
    int count() const { return list_->count(); }
    void retranslate();

private:
    QLabel *title_;
    QListWidget *list_;
};

} // namespace panel
