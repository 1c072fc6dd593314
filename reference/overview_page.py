"""mava_tum(7), mava_tum_inspect(7): the purpose of a library, the rules for all its functions, and a first program."""
import man_text
from function_page import enum_lines


def contract(headers, name):
    header = next(header for header in headers if header.path.endswith(name))
    return man_text.comment(header.comment)


def start(name, subject, header):
    return [".SH NAME", f"{name} \\- {subject}", *man_text.library(name),
            ".SH SYNOPSIS", f".B #include <{header}>", ".SH DESCRIPTION"]


def example_lines(what, source):
    return [".SH EXAMPLES", what, *man_text.code(source.rstrip("\n").split("\n"))]


def codec_overview(headers, example, release):
    rows = [(f"<{header.path}>", man_text.plain(header.comment)) for header in headers]
    body = [*start("mava_tum", "subscriber session records to protobuf wire bytes and back", "mava_tum.h"),
            "Every exported function has a page in section 3.",
            "An adapter converts a whole application record in one call each way.",
            "The codec below it decodes, encodes, duplicates and frees each of 40",
            "messages, with the memory that the caller's callbacks provide.",
            ".PP", "The headers:", *man_text.terms(rows),
            ".SH THE CODEC", *contract(headers, "codec_contract.h"),
            ".SH THE ADAPTERS", *contract(headers, "adapter_contract.h"),
            *example_lines("A session is encoded, decoded and printed:", example),
            *man_text.see_also("mava_tum_session_context_decode_ext (3)", "nal_queue_enqueue (3)",
                               "tum_nal_data_gpb_encode_tum_session_context (3)")]
    return man_text.page("mava_tum", 7, release, body)


def inspect_overview(header, parts, example, release):
    pages = [f"{function.name} (3)" for part in parts for function in part.functions]
    body = [*start("mava_tum_inspect", man_text.first_sentence(header.comment), header.path),
            *man_text.comment(header.comment), *enum_lines(header),
            *example_lines("A process logs why a message arrived in part:", example),
            *man_text.see_also(*pages, "mava_tum (7)")]
    return man_text.page("mava_tum_inspect", 7, release, body)
