#include "sweeps/message_list.h"

#include <algorithm>
#include <iterator>

namespace mava_tum_test
{

const std::vector<message> &all_messages()
{
    static const std::vector<message> messages = [] {
        std::vector<message> made;
        mava_tum_catalogue::for_each_type(mava_tum_catalogue::message_records(),
            [&](auto type) { made.push_back(mava_tum_test::message_of<typename decltype(type)::type>()); });
        return made;
    }();
    return messages;
}

std::vector<message> messages_where(bool (*applies)(const message &tested))
{
    std::vector<message> found;
    std::copy_if(all_messages().begin(), all_messages().end(), std::back_inserter(found), applies);
    return found;
}

} // namespace mava_tum_test
