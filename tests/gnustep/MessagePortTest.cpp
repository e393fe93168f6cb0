#include "MessagePortProbe.h"

#include <gtest/gtest.h>

namespace tarnwick::probe {
namespace {

TEST(MessagePort, DoesNotWaitForAConnectionThatIsNotThere) {
    EXPECT_GT(tellListenersOfNothing(), 0);
}

TEST(MessagePort, TakesConnectionsAfterwards) {
    EXPECT_GT(tellListenersOfNothing(), 0);
    EXPECT_TRUE(listenersTakeConnections());
}

} // namespace
} // namespace tarnwick::probe
