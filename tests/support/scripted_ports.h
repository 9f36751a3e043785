#pragma once

#include <gtest/gtest.h>

#include "forms/scripted_system.h"

namespace nimbrel {

/// The scripted system of a test, which fails if a queued answer is left over.
struct ScriptedPorts : ScriptedSystem {
  ScriptedPorts() = default;
  ScriptedPorts(const ScriptedPorts&) = delete;
  ScriptedPorts& operator=(const ScriptedPorts&) = delete;
  ~ScriptedPorts() override { EXPECT_TRUE(asker.isUsedUp()) << "a queued answer is left over"; }
};

}  // namespace nimbrel
