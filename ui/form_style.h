#pragma once

#include "orba/export.h"

class QAbstractScrollArea;
class QTableView;
class QWidget;

/// Whole rows are selected one at a time; cells are not edited. Rows are as high as a finger needs, `compact` ones as a
/// text needs. Columns fit their contents and `stretched` takes the rest; -1 shares the width alike.
PALX_API void setupTable(QTableView *table, int stretched, bool compact);

/// Keeps the text of every line edit and spin box of a form off its border.
void setFieldMargins(QWidget *form);

/// Ends typing in a field of the form, which then counts as edited.
void finishField(QWidget *form);

/// Lets a finger move the contents; a mouse keeps its own ways.
void setTouchScrolling(QAbstractScrollArea *area);

/// A mouse wheel over a number field or combo box of the form moves what scrolls, never the value: it may only have come under
/// the pointer.
void keepFromWheel(QWidget *form);

/// A form in an area that scrolls on a small panel or when a language needs more room. Owns the form.
PALX_API QWidget *scrollingForm(QWidget *form);
