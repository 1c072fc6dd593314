"""mava_tum(7): what the library is for, what all its functions share, and a first program."""
import man_text


def contract(headers, name):
    header = next(header for header in headers if header.path.endswith(name))
    return man_text.comment(header.comment)


def overview_page(headers, example, release):
    rows = [(f"<{header.path}>", man_text.plain(header.comment)) for header in headers]
    body = [".SH NAME", "mava_tum \\- subscriber session records to protobuf wire bytes and back",
            ".SH LIBRARY", "libmava_tum (\\-lmava_tum)",
            ".SH SYNOPSIS", ".B #include <mava_tum.h>",
            ".SH DESCRIPTION",
            "Every exported function has a page in section 3.",
            "An adapter converts a whole application record in one call each way.",
            "The codec below it decodes, encodes, duplicates and frees each of 40",
            "messages, with the memory that the caller's callbacks provide.",
            ".PP", "The headers:", *man_text.terms(rows),
            ".SH THE CODEC", *contract(headers, "codec_contract.h"),
            ".SH THE ADAPTERS", *contract(headers, "adapter_contract.h"),
            ".SH EXAMPLES", "A session is encoded, decoded and printed:",
            *man_text.code(example.rstrip("\n").split("\n")),
            ".SH SEE ALSO",
            ".BR mava_tum_session_context_decode_ext (3),",
            ".BR nal_queue_enqueue (3),",
            ".BR tum_nal_data_gpb_encode_tum_session_context (3)"]
    return man_text.page("mava_tum", 7, release, body)
