#pragma once

#include <vector>

/// What the layer's look comes down to in pixels, from a program that has started up.
namespace tarnwick::probe {

/// The share of the pixels that differ from the background, 0 to 1, in a tab view of the kind that has
/// neither tabs nor border.
double inkOfBareTabView();
/// What is seen, 0 to 1, where a tab view stands in front of something black.
double brightnessOfTabView(bool toldToDrawNone);
/// How far a ticked check box without title is from grey, 0 to 1.
double saturationOfCheckBox(bool enabled);
enum class CheckBox { off, on, mixed, onAfterMixed };
/// The brightness of each pixel of a check box without title.
std::vector<double> pictureOfCheckBox(CheckBox state);
/// What assistive technology is told of it.
int spokenValueOfCheckBox(CheckBox state);
/// Whether a folder's picture has its colours and a transparent corner once scaled and kept as a file would
/// be.
bool folderPictureSurvivesScaling();

} // namespace tarnwick::probe
