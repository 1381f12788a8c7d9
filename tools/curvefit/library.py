"""The curve-fit library called through its table, by ctypes: natively built, as a host would load it."""
import ctypes
import os

import numpy

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
DEFAULT = os.path.join(ROOT, "build", "native-release", "bin", "libCURVEFIT.so")
DOUBLES = ctypes.POINTER(ctypes.c_double)

# Offsets of the fields of the option record that the library reads.
FIELDS = {"zd_temperature": (48, "d"), "nernst_temperature": (56, "d"), "goldman_temperature": (64, "d"),
          "ext_goldman_temperature": (72, "d"), "force_props": (120, "i"), "force_taus": (124, "i"),
          "do_zero_shift": (152, "i"), "auto_zero_shift": (156, "i"), "order": (184, "i"), "power_a": (192, "i"),
          "power_b": (196, "i"), "exp_power": (200, "i"), "valence": (480, "i"), "method": (496, "i"),
          "function": (500, "i"), "minim": (508, "i"), "subst_factor": (8408, "d")}


class Stats(ctypes.Structure):
    _pack_ = 4
    _fields_ = [("points", ctypes.c_uint32), ("order", ctypes.c_uint32), ("reserved8", ctypes.c_uint32),
                ("step", ctypes.c_double), ("sum_y", ctypes.c_double), ("first_x", ctypes.c_double),
                ("offset", ctypes.c_double), ("slope", ctypes.c_double), ("max_y", ctypes.c_double),
                ("reserved60", ctypes.c_uint8)]


class Library:
    def __init__(self, path=DEFAULT):
        self.handle = ctypes.CDLL(path)
        libc = ctypes.CDLL(None)
        libc.dlvsym.restype = ctypes.c_void_p
        libc.dlvsym.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_char_p]
        found = libc.dlvsym(self.handle._handle, b"_CFIT_CreateCurveFit", b"4")
        self.create = ctypes.CFUNCTYPE(ctypes.c_void_p, ctypes.c_void_p)(found)

    def fit(self, record, method=0, minim=0, shift=True, **more):
        values = dict(function=record.function, order=record.terms, power_a=record.a, power_b=record.b,
                      exp_power=record.a, valence=record.valence, method=method, minim=minim,
                      auto_zero_shift=1 if shift else 0, subst_factor=10.0)
        for name in ("zd", "nernst", "goldman", "ext_goldman"):
            values[name + "_temperature"] = record.temperature
        values.update(more)
        options = bytearray(8432)
        for name, value in values.items():
            offset, kind = FIELDS[name]
            data = numpy.array([value], "f8" if kind == "d" else "i4").tobytes()
            options[offset:offset + len(data)] = data
        address = self.create((ctypes.c_char * len(options)).from_buffer(options))
        return CurveFit(address, record) if address else None


class CurveFit:
    def __init__(self, address, record):
        self.address, self.record = address, record
        self.table = ctypes.cast(ctypes.cast(address, ctypes.POINTER(ctypes.c_void_p))[0],
                                 ctypes.POINTER(ctypes.c_void_p))
        pointer, number = ctypes.c_void_p, ctypes.c_uint32
        self.call_seeds = self.place(7, ctypes.c_int32, ctypes.POINTER(DOUBLES), pointer, number, number)
        self.call_text = self.place(11, ctypes.c_int32, ctypes.c_char_p, number)
        self.call_evaluate = self.place(17, ctypes.c_int32, ctypes.POINTER(DOUBLES), pointer, number)
        self.call_set_up = self.place(59, ctypes.c_int32, ctypes.POINTER(Stats), pointer)

    def place(self, number, result, *arguments):
        return ctypes.CFUNCTYPE(result, ctypes.c_void_p, *arguments)(self.table[number])

    def destroy(self):
        self.place(0, ctypes.c_void_p, ctypes.c_uint32)(self.address, 1)

    @staticmethod
    def arrays(columns):
        return (DOUBLES * len(columns))(*[c.ctypes.data_as(DOUBLES) for c in columns])

    def seeds(self, columns, y):
        """The flat seeds, or None."""
        columns = [numpy.ascontiguousarray(c, float) for c in columns] + [numpy.ascontiguousarray(y, float)]
        out = numpy.zeros(26)
        ok = self.call_seeds(self.address, self.arrays(columns), out.ctypes.data, len(columns), len(y))
        return out[:len(self.record.flat())] if ok else None

    def error(self):
        text = ctypes.create_string_buffer(256)
        self.call_text(self.address, text, 256)
        return text.value.decode()

    def prepare(self, columns):
        """Arrays that many curves are drawn over."""
        self.columns = [numpy.ascontiguousarray(c, float) for c in columns]
        self.pointers = self.arrays(self.columns)
        self.stats = Stats(points=len(self.columns[0]), order=self.record.terms, first_x=self.columns[0][0])
        self.y = numpy.empty(len(self.columns[0]))

    def curve(self, flat):
        flat = numpy.ascontiguousarray(flat, float)
        grid = len(self.record.params)
        tail = list(flat[grid:])
        self.stats.slope = tail.pop() if self.record.function == 14 else 0.0
        self.stats.offset = tail.pop() if tail else 0.0
        if not self.call_set_up(self.address, ctypes.byref(self.stats), flat.ctypes.data):
            raise RuntimeError(self.error())
        self.call_evaluate(self.address, self.pointers, self.y.ctypes.data, len(self.y))
        return self.y.copy()
