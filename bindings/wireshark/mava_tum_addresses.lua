-- Shows the addresses of a message as people write them, below the message, and lets a display filter ask for them:
--     mava_tum.ipv4 == 192.0.2.1
--     mava_tum.ipv6 == 2001:db8::/32
-- protobuf knows no addresses: an IPv4 address is a number to it, whose bytes stand on the wire in network order, an
-- IPv6 address 16 bytes. install_profile puts this file among the plugins of Wireshark.

-- The fields that hold them, by their names in a display filter: "make_proto addresses" writes these lines.
local kinds = {
-- begin
    ["pbf.mava_tum.subscriber_v4.ipv4_address"] = "ipv4",
    ["pbf.mava_tum.subscriber_v6.field_2"] = "ipv6",
    ["pbf.mava_tum.subscriber_v6.field_3"] = "ipv6",
    ["pbf.mava_tum.subscriber_v6.field_4"] = "ipv6",
    ["pbf.mava_tum.subscriber_v6.field_6"] = "ipv6",
    ["pbf.mava_tum.l2tp_data.field_2"] = "ipv4",
    ["pbf.mava_tum.l2tp_data.field_3"] = "ipv4",
    ["pbf.mava_tum.l2tp_data.field_4"] = "ipv6",
    ["pbf.mava_tum.l2tp_data.field_5"] = "ipv6",
    ["pbf.mava_tum.subscriber_li.field_7"] = "ipv4",
    ["pbf.mava_tum.subscriber_li.field_8"] = "ipv6",
    ["pbf.mava_tum.subscriber_route_ipv4.field_3"] = "ipv4",
    ["pbf.mava_tum.subscriber_route_ipv4.field_5"] = "ipv4",
    ["pbf.mava_tum.subscriber_route_ipv6.field_3"] = "ipv6",
    ["pbf.mava_tum.subscriber_route_ipv6.field_5"] = "ipv6",
-- end
}

local addresses = Proto("mava_tum", "Addresses of a mava_tum message")
local ipv4 = ProtoField.ipv4("mava_tum.ipv4", "IPv4 address")
local ipv6 = ProtoField.ipv6("mava_tum.ipv6", "IPv6 address")
addresses.fields = { ipv4, ipv6 }

local function add_address(tree, field)
    local kind = kinds[field.name]
    -- Bytes of another length are none.
    if kind == "ipv4" and field.len == 4 then
        tree:add(ipv4, field.range):append_text(" (" .. field.name .. ")")
    elseif kind == "ipv6" and field.len == 16 then
        tree:add(ipv6, field.range):append_text(" (" .. field.name .. ")")
    end
end

function addresses.dissector(_, _, root)
    local tree
    for _, field in ipairs({ all_field_infos() }) do
        if kinds[field.name] then
            tree = tree or root:add(addresses)
            add_address(tree, field)
        end
    end
end

-- true: ask Wireshark for all fields, also while it only filters.
register_postdissector(addresses, true)
