"""The bracket beside two measurements that share their percents, at two sizes."""
from canvas import Canvas

FOLDER = "brackets"
SCRIPT = "measurement_pictures.rc"
HEAD = ["// The bracket beside two measurements that share their percents, which tools/bitmaps/make_pictures.py draws,",
        "// and lists here. The larger form is 200 further on."]

SIZES = {1.0: (12, 32), 1.5: (18, 48)}
NUMBER, LARGER = 2133, 200


def draw(scale):
    """Two arms at the measurements, and a tip that points to the percents."""
    canvas = Canvas(SIZES[scale], scale, (1, 3, 7, 7))
    middle, spine = (canvas.top + canvas.bottom) // 2, (canvas.left + canvas.right) // 2
    for line in ([(canvas.left, canvas.top), (spine, canvas.top)], [(canvas.left, canvas.bottom), (spine, canvas.bottom)],
                 [(spine, canvas.top), (spine, canvas.bottom)], [(spine, middle), (canvas.right, middle)]):
        canvas.draw.line(line, fill=1, width=canvas.pen)
    return canvas


def pictures():
    """(id, file name, canvas) of every picture."""
    yield NUMBER, "bracket.bmp", draw(1.0)
    yield NUMBER + LARGER, "bracket_larger.bmp", draw(1.5)
