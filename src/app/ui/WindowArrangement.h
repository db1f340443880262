#pragma once
// Arranging a main frame's child windows besides QMdiArea's own cascade.
class QMdiArea;

// Side by side strips: "horizontally" stacks full-width windows top to bottom,
// "vertically" puts full-height windows in columns left to right.
void TileHorizontally(QMdiArea& area);
void TileVertically(QMdiArea& area);
// Lines the minimised windows up along the bottom edge, left to right.
void ArrangeIcons(QMdiArea& area);
