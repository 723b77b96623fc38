#pragma once

class QPoint;

/// Where Qt sees a point of the screen that native calls give in device pixels. The two differ when Qt
/// scales.
QPoint logicalPoint(const QPoint& native);
