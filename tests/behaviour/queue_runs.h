// Random sequences of the queue's three operations over two queues and a few nodes.
#pragma once

#include "behaviour_table.h"

namespace mava_tum_behaviour
{

void run_queue(behaviour_table &table);

} // namespace mava_tum_behaviour
