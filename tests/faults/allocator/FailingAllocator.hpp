// An operator new that makes one allocation fail, or all from one on.
#pragma once

namespace zebtest {

/// Makes the allocation of this number fail, counted from 1 on from now, and all later ones where asked for; 0: none.
void failAllocation(unsigned long number, bool andAllLater = false);

}  // namespace zebtest
