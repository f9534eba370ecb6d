"""Values that fit where no number does, and hardly anywhere else; every attack draws from them."""

NUMBERS = ["", "0", "-1", "2", "33", "51", "32767", "-32769", "65536", "2147483647", "4294967297",
           "99999999999999999999", "1e308", "-1e39", "nan", "-inf", "0x10", "4,5", "3.99", "x" * 3000,
           "\u00e4\u2028", "1:2", "%s%n", "$$|$PAR|9|", "\x00", " 7 "]
