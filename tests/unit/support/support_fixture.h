// An add-in state over the POSIX platform for the support services' tests:
// launches recorded and not spawned, boxes and forms answered by the scripted
// user interface, a fake host that can be connected or left running, and a
// private home folder.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "addin/upward_calls.h"
#include "fake_outlook.h"
#include "platform/posix/posix_objects.h"
#include "platform/posix/posix_system.h"
#include "platform/posix/scripted_ui.h"
#include "state/addin_state.h"

namespace qvx::testing {

class SupportTest : public ::testing::Test {
 protected:
  SupportTest()
      : root_(MakeRoot()),
        system({.home = Home(),
                .addinFolder = AddinFolder(),
                .spawn = false,
                .environment = {{"USERNAME", "winuser"}}}),
        objects(system) {
    ConnectUpwardCalls(s);
  }
  ~SupportTest() override { std::filesystem::remove_all(root_); }

  // The host is the add-in's connected Application.
  void ConnectHost() { s.main.objOutlook = outlook.Application(); }
  // The host runs and can be attached to by GetObject.
  void HostRunning() {
    objects.RegisterRunning("Outlook.Application", [this] { return outlook.Application(); });
  }
  std::string Home() const { return (root_ / "home").string(); }
  std::string AddinFolder() const { return (root_ / "addin").string(); }

 private:
  static std::filesystem::path MakeRoot() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    auto root = std::filesystem::temp_directory_path() /
                ("qvx_support_" + std::to_string(::getpid()) + "_" + info->test_suite_name() + "_" +
                 info->name());
    std::filesystem::remove_all(root);
    std::filesystem::create_directories(root / "home");
    std::filesystem::create_directories(root / "addin");
    return root;
  }

  std::filesystem::path root_;

 protected:
  platform::PosixSystemServices system;
  platform::PosixObjectFactory objects;
  platform::ScriptedUserInterface ui;
  AddinState s{platform::Platform{
      .registry = nullptr, .objects = &objects, .ui = &ui, .system = &system, .windows = nullptr}};
  FakeOutlook outlook;
};

}  // namespace qvx::testing
