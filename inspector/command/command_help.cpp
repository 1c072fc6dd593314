#include "command_help.h"

namespace mava_tum_cli::help
{

const char *const overview = R"(
Input is wire bytes, hex, base64, frames (each message after its length in 4 bytes, big-endian),
a dump, C, or a capture (pcap, pcapng).
Exit code: 0 all is well, 1 the data is broken or differs, 2 the command could not be carried out.

Example:
  $ echo 080115c0000201 | mava-tum decode subscriber_v4
  subscriber_v4, 7 bytes
       0  1 field_1                  varint            1
       2  2 ipv4_address             fixed32           c0000201 = 192.0.2.1
)";

const char *const decode = R"(
Example:
  $ echo 52072a05616c696365 | mava-tum decode session_context | head -3
  session_context, 9 bytes
       0  10 session_data            record            7 bytes
       2    5 field_5                text              "alice"
)";

const char *const explain = R"(
Example:
  $ echo 080115c00002 | mava-tum explain subscriber_v4 2>/dev/null
  subscriber_v4, 6 bytes
         0  08                       field_1: field 1, varint
         1  01                         1
         2  15                       ipv4_address: field 2, fixed32, IPv4 address
         3  C0 00 02                   a value, cut short
                                     fault: `ipv4_address` has 3 of its 4 bytes at byte 3: result -1
)";

const char *const encode = R"(
What `mava-tum decode --json` prints is taken back, and so is the object of its fields alone.

Example:
  $ echo '{"field_1": 1, "ipv4_address": "192.0.2.1"}' | mava-tum encode subscriber_v4 --to hex
  080115c0000201
)";

const char *const app = R"(
Example:
  $ echo '{"field_1": 2, "field_5": 60}' | mava-tum app session_delete encode --to hex
  0802283c
  $ echo 0802283c | mava-tum app session_delete decode
  {
    "field_1": 2,
    "field_2": 0,
    "field_3": 0,
    "field_4": 0,
    "field_5": 60
  }
)";

const char *const check = R"(
Exit code: 1 when there is a finding.

Example:
  $ echo 0802188080044801 | mava-tum check session_delete
  `field_3` is 65536 at byte 2: `field_3` has 16 bits and keeps 0 (L20)
  `#9` at byte 6 does not arrive: session_delete does not know it
  2 findings; the record has 32 bytes
)";

const char *const guess = R"(
The likeliest comes first: with the fewest unknown bytes, odd forms and absent fields.

Example:
  $ echo 080115c0000201 | mava-tum guess
  message                      unknown bytes unknown fields odd forms  absent fields
  subscriber_v4                            0              0         0              0
  l2tp_data                                0              0         0             17
  subscriber_icmp                          5              1         0              0
  subscriber_mtu                           5              1         0              0
)";

const char *const diff = R"(
Exit code: 1 when a field differs.

Example:
  $ echo 080115c0000201 > a; echo 080115c0000202 > b; mava-tum diff subscriber_v4 a b
  ipv4_address: c0000201 = 192.0.2.1 -> c0000202 = 192.0.2.2
)";

const char *const list = R"(
Example:
  $ mava-tum list subscriber_v4
  field  name              kind              content
      1  field_1           varint            32 bits
      2  ipv4_address      fixed32           IPv4 address
)";

const char *const web = R"(
`mava-tum web message.hex -o message.html` writes inspector.html with the input in it: a page that
needs no other file and no network.

Example:
  $ echo '<script id="given">null</script>' > page.html; echo 08 | mava-tum web --page page.html
  <script id="given">{"name":"standard input","message":"","format":"auto","bytes":"MDgK"}</script>
)";

} // namespace mava_tum_cli::help
