#pragma once

namespace tarnwick {

class ApplicationBundle;
class Panels;
class Process;

/// Refuses to run when the application was started as a login item: an alert, then the process ends with
/// status 0. Otherwise nothing happens.
void refuseLoginItemStart(const ApplicationBundle& bundle, Panels& panels, Process& process);

} // namespace tarnwick
