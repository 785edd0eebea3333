#pragma once

#include <QObject>

class QWidget;

namespace panel {

/// Prints the line "shown" on standard output when a window has painted itself for the first time, and ends. For programs
/// that start the panel and wait for it: supervisors, measurements. The panel makes one when PALX_REPORT_SHOWN is set.
class ShownReport : public QObject
{
public:
    explicit ShownReport(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace panel
