#pragma once

#include <string>
#include <utility>

/// A running application with a window, as far as the layer changes it.
namespace tarnwick::probe {

struct WindowResult {
    /// How many of the posted clicks the button's action was sent for.
    int clicksHandled = 0;
    /// What the panel's block was given, and the chosen folder; -1 when it was not called.
    long panelAnswer = -1;
    int panelAnswers = 0;
    std::string panelFolder;
    bool panelBeganAtOnce = false;
    int viewDidLoadCalls = 0;
    int viewDidLoadCallsForAGivenView = -1;
    std::string identifier;
    /// The brightness of a pixel in the middle of the layered view and in its corner, 0 to 1.
    double layerMiddle = -1;
    double layerCorner = -1;
    std::string textAfterReturn;
    int defaultButtonPresses = 0;
};

/// Runs the application: posts `clicks` clicks, answers an open panel with OK, edits a field beside a default
/// button and leaves it with Return.
WindowResult runWindow(int clicks);

/// How far a window that cannot be as narrow as the screen reaches beyond its left and its right edge.
std::pair<double, double> overhangOfTooWideWindow(double excess);

/// How wide a window without a frame is that is to be that wide.
double widthOfWindow(double wanted);

} // namespace tarnwick::probe
