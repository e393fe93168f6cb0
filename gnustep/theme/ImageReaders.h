#pragma once

/// From now on pictures are read by the toolkit's own bitmap readers alone: PNG, TIFF, JPEG, GIF, ICNS and
/// the like. Before the first image.
void TNUseBitmapReadersOnly();
