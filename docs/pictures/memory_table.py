"""Where a decoded record lies and points to, as picture_facts has printed it."""
from collections import namedtuple

Row = namedtuple("Row", "where name offset size content target")


def read_tables(path):
    """A table without the alias bit, and one with it; each a list of rows by the place that contains them."""
    tables = []
    with open(path, encoding="utf-8") as file:
        for line in file.read().splitlines():
            if line.startswith("#"):
                tables.append([])
                continue
            where, name, offset, size, content, target = line.split("\t")
            tables[-1].append(Row(where, name, int(offset), int(size), content, target))
    return tables


def whole(table, where):
    return next(row for row in table if row.where == where and row.name == "whole")


def members(table, where):
    return [row for row in table if row.where == where and row.name != "whole"]


def blocks(table):
    return [row for row in table if row.where.startswith("block") and row.name == "whole"]
