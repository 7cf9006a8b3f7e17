#pragma once

class QModelIndex;

namespace zenta::qt {

class QtGridView;

// Makes assistive tools read every grid as the table a person sees. The table is named by the
// grid's caption (a name the host gave the widget wins) and described by its columns' captions;
// its children are the shown columns' headers, then the cells row by row, then the footer texts.
// Hidden columns are not there at all. A button cell is a named button with a press action; an
// editable cell takes text (and an amount cell a number) as if typed into it, through the
// grid's key rules, and ends the cell as leaving it would. Installing again does nothing.
void InstallAccessibleGrids();

// The index of a cell among the table's children, for the events a grid sends; -1 for an index
// of a hidden column.
int AccessibleChildIndex(const QtGridView& view, const QModelIndex& index);

}  // namespace zenta::qt
