#include "fakes/FileFaultsContract.h"

#include "posix/StandardFileOperations.h"

namespace kalvora::filefaults {

INSTANTIATE_TEST_SUITE_P(StandardDisk, FileFaults,
                         everyWorkOn(diskOf<StandardFileOperations>("StandardFileOperations"),
                                     {Fault::Fail, Fault::Shorten, Fault::Delay, Fault::KillBefore,
                                      Fault::KillAfter}),
                         nameOf);

}  // namespace kalvora::filefaults
