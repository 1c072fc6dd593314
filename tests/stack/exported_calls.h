// Every exported function with the calls that take it furthest: full records, empty ones and random ones, buffers that
// fit and that do not, segments, inputs that are whole, cut, and without any order.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mava_tum_test
{

// The calls do nothing but to call: what they need was made before, and `kept` owns it.
struct exported_calls {
    std::string name;
    std::vector<std::function<void()>> calls;
    std::vector<std::shared_ptr<void>> kept;
};

std::vector<exported_calls> message_calls(); // four for each of 40 messages
std::vector<exported_calls> adapter_calls(); // two for each of 19 adapters
std::vector<exported_calls> queue_calls();   // three

} // namespace mava_tum_test
