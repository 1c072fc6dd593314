"""The layers, with an arrow for each pair of which one includes the other in the sources."""
import os
import re

from svg_picture import Picture

INCLUDE = re.compile(r'^\s*#\s*include\s*"(\w+)/', re.MULTILINE)
# folder: position and text of its box.
BOXES = {
    "src/nal": (250, 128, "adapters: a whole session in one call"),
    "src/messages": (250, 228, "what each message is: a list of fields"),
    "src/codec": (250, 328, "how bytes are read and written"),
    "include/tum_nal": (600, 128, "application records"),
    "include/mava_tum": (600, 278, "codec records, results"),
}
WIDTH, HEIGHT = 256, 56
# The arrow from box to box, for each pair of folders of which one may include the other.
ROUTES = {
    ("src/nal", "src/messages"): [(378, 184), (378, 228)],
    ("src/messages", "src/codec"): [(378, 284), (378, 328)],
    ("src/nal", "src/codec"): [(250, 170), (228, 170), (228, 356), (250, 356)],
    ("src/nal", "include/tum_nal"): [(506, 146), (600, 146)],
    ("src/nal", "include/mava_tum"): [(506, 170), (568, 170), (568, 290), (600, 290)],
    ("src/messages", "include/mava_tum"): [(506, 256), (540, 256), (540, 306), (600, 306)],
    ("src/codec", "include/mava_tum"): [(506, 356), (556, 356), (556, 322), (600, 322)],
    ("include/tum_nal", "include/mava_tum"): [(728, 184), (728, 278)],
}


def edges(project):
    """Every pair of folders of which a file of the first includes one of the second."""
    found = set()
    folders = {os.path.basename(folder): folder for folder in BOXES}
    for folder in BOXES:
        for name in os.listdir(os.path.join(project, folder)):
            # The C++ layer is beside the headers, and is not drawn.
            if not os.path.isfile(os.path.join(project, folder, name)):
                continue
            with open(os.path.join(project, folder, name), encoding="utf-8") as file:
                found |= {(folder, folders[target]) for target in INCLUDE.findall(file.read())}
    return {(source, target) for source, target in found if source != target}


def exported(project):
    """The numbers of exported functions: adapters, codec, queue."""
    with open(os.path.join(project, "src/exports.txt"), encoding="utf-8") as file:
        names = file.read().split()
    prefixes = ("tum_nal_data_gpb_", "mava_tum_", "nal_queue_")
    counts = [sum(name.startswith(prefix) for name in names) for prefix in prefixes]
    assert sum(counts) == len(names)
    return counts


def kinds_of_field(project):
    names = os.listdir(os.path.join(project, "src/codec"))
    headers = {name for name in names if re.fullmatch(r"field_\w+\.h", name)}
    return len(headers)


def draw_box(picture, folder, more):
    x, y, words = BOXES[folder]
    picture.rect(x, y, WIDTH, HEIGHT, "tag" if folder.startswith("src") else "value")
    picture.text(x + 12, y + 20, folder + "/", "strong code")
    picture.text(x + WIDTH - 12, y + 20, more, "small faint", "end")
    picture.text(x + 12, y + 41, words, "small")


def draw_journey(picture):
    """The way of values from top to bottom, and back."""
    for x, y, words, below in ((24, 128, "application record", "flat, of fixed size"),
                               (76, 228, "codec record", "with presence"),
                               (24, 328, "wire bytes", "protobuf encoding")):
        picture.rect(x, y, 196 - x, HEIGHT, "length")
        picture.text(x + 10, y + 22, words, "strong small")
        picture.text(x + 10, y + 41, below, "small faint")
    picture.arrow([(48, 184), (48, 328)], "length")
    for x, start, end in ((136, 228, 184), (112, 328, 284), (160, 284, 328)):
        picture.arrow([(x, start), (x, end)], "length")


def draw(project):
    found = edges(project)
    unknown = found - set(ROUTES)
    if unknown:
        raise SystemExit(f"includes that this picture has no arrow for: {sorted(unknown)}")
    adapters, codec, queue = exported(project)
    picture = Picture(880, 420, "The layers", "Adapters use messages, messages use the codec, all use the public "
                      "headers; no include points upwards.")
    picture.rect(250, 52, 606, 40, "plain")
    picture.text(262, 77, "your program", "strong")
    picture.text(844, 77, "includes the headers, links libmava_tum, needs libc alone", "small faint", "end")
    picture.arrow([(728, 92), (728, 128)], "plain")
    draw_box(picture, "src/nal", f"{adapters} + {queue} functions")
    draw_box(picture, "src/messages", f"{codec} functions")
    draw_box(picture, "src/codec", f"{kinds_of_field(project)} kinds of field")
    draw_box(picture, "include/tum_nal", "C11, C++11")
    draw_box(picture, "include/mava_tum", "C11, C++11")
    for edge in sorted(found):
        picture.arrow(ROUTES[edge], "plain")
    draw_journey(picture)
    picture.text(24, 404, "The way of the values.", "small faint")
    picture.text(250, 404, "Arrows: what includes what. None points upwards; a test holds it.", "small faint")
    return picture
