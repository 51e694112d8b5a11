// What a drive list shows on a machine that has no drives.
//
// The home folder comes first, then "/", then the mounts that a person would call a disk: sticks,
// cards, further disks and network folders, ordered by where they are. The machine's own
// mechanics (kernel file systems, memory disks, containers, packages, boot partitions) and second
// views of a disk that is listed already are left out.
#pragma once

#include "core/ports/file_system.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

// As things are now; reads one small file of the kernel's, and touches none of the disks.
std::vector<Volume> mounted_volumes();

// The disks among the mounts in a text of the form of /proc/self/mountinfo. `label_of` tells the
// label of a block device ("/dev/sdb1"), or "". A mount's name is that of its folder; its label is
// the disk's where that says more, for a network folder the place that it comes from.
std::vector<Volume> disks_among(std::string_view mount_table,
                                const std::function<std::string(const std::string&)>& label_of);

}  // namespace zephyne
