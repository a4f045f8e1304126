#pragma once

/// The disk beneath the store in all tests of this program, a VFS under the header shim. As a rule it hands everything
/// through, but for syncs, which would only cost time. It can be told to fill up, to break, to know no locks, or to
/// lose its power; then what was not synced survives in part, as chance has it.
namespace qinghe::failing_disk {

/// After `healthyWrites` more writes the disk is full: the next one fails, and later ones too unless `once`.
void fillUpAfter(int healthyWrites, bool once);
/// There is space again. Returns whether a write has failed meanwhile.
bool makeSpace();

/// From now on reads fail as the system reports it of a disk that is breaking, or none.
void failReads(bool fail);
/// From now on there are no locks on this disk, or there are.
void refuseLocks(bool refuse);

/// After `healthyChanges` more writes, cuts, syncs or removals the power is gone, and nothing on the disk can be
/// changed. Counts from files that are all durable.
void cutPowerAfter(int healthyChanges);
/// Power is back, and the files hold what reached the disk. Call it with no file open. Returns whether it was gone.
bool restorePower();

} // namespace qinghe::failing_disk
