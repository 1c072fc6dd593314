// Every exported function with calls that reach its deepest paths: full, empty and random records, large and short
// buffers, segments, complete, truncated and random inputs.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mava_tum_test
{

// The calls only call the function: `kept` owns their data, which are made before.
struct exported_calls {
    std::string name;
    std::vector<std::function<void()>> calls;
    std::vector<std::shared_ptr<void>> kept;
};

std::vector<exported_calls> message_calls(); // four for each of 40 messages
std::vector<exported_calls> adapter_calls(); // two for each of 19 adapters
std::vector<exported_calls> queue_calls();   // three

} // namespace mava_tum_test
