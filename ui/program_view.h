#pragma once

#include "orba/export.h"

#include <QPlainTextEdit>

/// Shows a robot program to look at: numbered lines in a fixed-width font, nothing can be edited.
class PALX_API ProgramView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ProgramView(QWidget *parent = nullptr);

    /// Shows a file; false, with nothing shown, when it cannot be read. Of a file longer than kMostBytes the beginning.
    bool showFile(const QString &file);

    static constexpr qint64 kMostBytes = 1024 * 1024; ///< far more than a program that somebody reads

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOutNumbers();
    void paintNumbers();

    QWidget *numbers_;
};
