"""Pretty printers of gdb for the records of libmava_tum and the C++ classes over them: the present fields."""

from __future__ import annotations

import gdb
import gdb.printing

from .application_records import ApplicationRecordPrinter
from .codec_records import CodecRecordPrinter
from .cpp_layer import cpp_printer
from .record_tables import APPLICATION_RECORDS, CODEC_RECORDS
from .single_values import BytesPrinter


class RecordPrinters(gdb.printing.PrettyPrinter):
    """Finds the printer of a value by the tag of its structure."""

    def __init__(self) -> None:
        super().__init__("mava_tum")

    def __call__(self, value: gdb.Value) -> object | None:
        tag = value.type.strip_typedefs().tag
        if tag in CODEC_RECORDS:
            return CodecRecordPrinter(tag, value)
        if tag in APPLICATION_RECORDS:
            return ApplicationRecordPrinter(tag, value)
        return BytesPrinter(value) if tag == "mava_tum_bytes" else cpp_printer(tag or "", value)


def register(objfile: gdb.Objfile | None) -> None:
    """Registers the printers, for one file of the program, or for all if it is None."""
    gdb.printing.register_pretty_printer(objfile, RecordPrinters(), replace=True)
