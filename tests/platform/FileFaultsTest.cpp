#include "fakes/FileFaultsContract.h"

#include "win32/platform/WindowsFileOperations.h"

namespace kalvora::filefaults {

// Two faults are left out for the time they take here, and are tried on the other disk only: a kill
// before a step leaves what a kill after the step before it leaves, and what another copy of the
// program does meanwhile is done to other files.
INSTANTIATE_TEST_SUITE_P(WindowsDisk, FileFaults,
                         everyWorkOn(diskOf<WindowsFileOperations>("WindowsFileOperations"),
                                     {Fault::Fail, Fault::Shorten, Fault::KillAfter}),
                         nameOf);

}  // namespace kalvora::filefaults
