// The parts of the desktop program on fakes.
#pragma once

#include "settings/nrPreferences.h"
#include "tests/TemporaryFolder.h"
#include "tests/clipboard/ClipboardFixture.h"
#include "tests/fakes/MemorySettingsStore.h"

namespace nerlo::shell {

class ShellFixture : public test::ClipboardFixture {
  protected:
    test::TemporaryFolder folder;
    test::MemorySettingsStore store;
    settings::nrPreferences preferences{store,
                                        queue,
                                        {folder / "defaults.plist", folder / "Data/profiles.nrp",
                                         folder / "Data/profilesFR.nrp",
                                         folder / "Data/removedProfiles.nrp"}};
};

} // namespace nerlo::shell
