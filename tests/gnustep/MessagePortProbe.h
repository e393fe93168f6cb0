#pragma once

namespace tarnwick::probe {

/// How many descriptors a port of this program listens at; each was told of a connection that was not there.
int tellListenersOfNothing();
/// Whether a connection by name reaches the port afterwards.
bool listenersTakeConnections();

} // namespace tarnwick::probe
