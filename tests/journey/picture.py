"""Pictures as rows of RGB pixels: taken from a frame buffer or a bitmap file, written as PNG."""
import struct
import zlib


class Picture:
    def __init__(self, width, height, rgb):
        assert len(rgb) == width * height * 3
        self.width, self.height, self.rgb = width, height, bytes(rgb)

    @classmethod
    def from_bgr(cls, width, height, data, start, stride, bytes_per_pixel, bottom_up=False):
        rows = range(height - 1, -1, -1) if bottom_up else range(height)
        body = b"".join(data[start + row * stride : start + row * stride + width * bytes_per_pixel] for row in rows)
        rgb = bytearray(width * height * 3)
        for channel in range(3):
            rgb[channel::3] = body[2 - channel :: bytes_per_pixel]
        return cls(width, height, rgb)

    @classmethod
    def from_xwd(cls, data):
        """A window dump of 32 bits a pixel, blue first, as a frame buffer of depth 24 is kept."""
        header = struct.unpack(">25I", data[:100])
        header_size, width, height, stride, colours = header[0], header[4], header[5], header[12], header[19]
        assert header[11] == 32 and header[7] == 0, "the frame buffer has another layout"
        return cls.from_bgr(width, height, data, header_size + 12 * colours, stride, 4)

    @classmethod
    def from_bmp(cls, data):
        """An uncompressed bitmap file of 24 or 32 bits a pixel; a negative height has the top row first. Raises ValueError
        when it isn't a whole one."""
        if data[:2] != b"BM" or len(data) < 54:
            raise ValueError("no bitmap")
        start, = struct.unpack_from("<I", data, 10)
        width, height, _, bits, compression = struct.unpack_from("<iiHHI", data, 18)
        stride = (width * bits + 31) // 32 * 4
        if bits not in (24, 32) or compression not in (0, 3) or len(data) < start + stride * abs(height):
            raise ValueError("another kind of bitmap, or a part of one")
        return cls.from_bgr(width, abs(height), data, start, stride, bits // 8, bottom_up=height > 0)

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.rgb[at : at + 3])

    def part(self, x, y, width, height):
        """Raises ValueError when it isn't wholly inside: what isn't seen cannot be compared."""
        if x < 0 or y < 0 or x + width > self.width or y + height > self.height:
            raise ValueError(f"{width}x{height} at {x},{y} isn't wholly on a picture of {self.width}x{self.height}")
        rows = (((y + row) * self.width + x) * 3 for row in range(height))
        return Picture(width, height, b"".join(self.rgb[at : at + width * 3] for at in rows))

    def count(self, wanted):
        """How many pixels are so: wanted(red, green, blue)."""
        return sum(map(wanted, self.rgb[0::3], self.rgb[1::3], self.rgb[2::3]))

    def bmp(self):
        """As a bitmap file of 24 bits a pixel with the bottom row first, the kind that most programs write."""
        bgr = bytearray(len(self.rgb))
        for channel in range(3):
            bgr[channel::3] = self.rgb[2 - channel :: 3]
        row, fill = self.width * 3, b"\0" * (-self.width * 3 % 4)
        rows = b"".join(bgr[at - row : at] + fill for at in range(len(bgr), 0, -row))
        info = struct.pack("<IiiHHIIiiII", 40, self.width, self.height, 1, 24, 0, len(rows), 3780, 3780, 0, 0)
        return b"BM" + struct.pack("<IHHI", 54 + len(rows), 0, 0, 54) + info + rows

    def png(self):
        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

        stride = self.width * 3
        raw = b"".join(b"\0" + self.rgb[row * stride : (row + 1) * stride] for row in range(self.height))
        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(raw, 1)) + chunk(b"IEND", b"")

    def __eq__(self, other):
        return isinstance(other, Picture) and (self.width, self.rgb) == (other.width, other.rgb)

    def __repr__(self):
        return f"picture of {self.width}x{self.height} with checksum {zlib.crc32(self.rgb):08x}"
