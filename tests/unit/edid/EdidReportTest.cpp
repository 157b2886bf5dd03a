// SPDX-License-Identifier: MIT
// Whole reports, to the letter.
#include "EdidBlock.h"

#include <gtest/gtest.h>

TEST(EdidReport, ofAnAnalogMonitorReadsLikeThis)
{
  EdidBlock block;
  block.set(8, {0x10, 0xAC, 0x34, 0x12, 0x78, 0x56, 0x34, 0x12, 0x10, 0x14, 0x01, 0x03})
      .set(20, {0x2A, 0x22, 0x1B, 0x78, 0xEE})
      .set(25, {0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54})
      .set(35, {0xA5, 0x4B, 0x85})
      .set(38,
           {0xD1, 0xC0, 0x01, 0x02, 0x81, 0x80, 0x61, 0x4F, 0x01, 0x01, 0x00, 0x00, 0x01, 0x01, 0xFF, 0xFF})
      .set(54, {0x00, 0x01, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x43, 0x58, 0x2C, 0x45, 0xE7, 0x52, 0x0E, 0x21,
                0x02, 0x03, 0x9E})
      .set(72, {0x00, 0x00, 0x00, 0xFC, 0x00})
      .set(77, "Lab display 7")
      .set(90, {0x00, 0x00, 0x00, 0xFD, 0x00, 0x32, 0x4B, 0x1E, 0x53, 0x11, 0x00, 0x0A, 0x20, 0x20, 0x20,
                0x20, 0x20, 0x20})
      .set(108, {0x00, 0x00, 0x00, 0xFF, 0x00})
      .set(113, "SN-0001\nabcde")
      .set(126, {0x01})
      .sign();
  // Of the second half nothing is told.
  block.set(128, std::string(128, '\x5A'));
  EXPECT_EQ(block.report(), R"(Raw data (hexadecimal):

  00  FF  FF  FF  FF  FF  FF  00  10  AC  34  12  78  56  34  12
  10  14  01  03  2A  22  1B  78  EE  EE  91  A3  54  4C  99  26
  0F  50  54  A5  4B  85  D1  C0  01  02  81  80  61  4F  01  01
  00  00  01  01  FF  FF  00  01  80  18  71  38  2D  43  58  2C
  45  E7  52  0E  21  02  03  9E  00  00  00  FC  00  4C  61  62
  20  64  69  73  70  6C  61  79  20  37  00  00  00  FD  00  32
  4B  1E  53  11  00  0A  20  20  20  20  20  20  00  00  00  FF
  00  53  4E  2D  30  30  30  31  0A  61  62  63  64  65  01  BF

Decoded data -- corresponding raw data shown as hexadecimal in []:

   [00 FF FF FF FF FF FF 00]
   Normal Header

   Vendor/Product Identification

      [10 AC]
      ID Manufacturer Name (EISA 3-character code) = DEL

      [34 12]
      ID Product Code (hexadecimal)                = 1234

      [78 56 34 12]
      ID Serial Number (hexadecimal)               = 12345678

      [10 14]
      Manufactured: Week 16 of 2010

   [01 03]
   EDID Version 1.3

   Basic Display Parameters / Features

      [2A]
      Video Input Definition:
      Analog Input
         0.714, 0.286 (1.000 V p-p)
         Pedestal: Not Expected
         Separate Syncs: Supported
         Composite Syncs: Not Supported
         Sync-on-Green: Supported
         Serration during composite or SoG: Not Required

      [22]
      Max. Horizontal Image Size = 34.000 cm or 13.386 in

      [1B]
      Max. Vertical   Image Size = 27.000 cm or 10.630 in

      Max. Diagonal   Image Size = 43.417 cm or 17.093 in (calculated)

      [78]
      Display Transfer Characteristic (Gamma) = 1.000

      [EE]
      DPMS Standby: Supported
      DPMS Suspend: Supported
      DPMS Active Off/Very Low Power: Supported
      Display Type: RGB Color display
      Color Space: sRGB standard default
      Preferred Timing Mode: Defined in Detailed Timing Block #1
      Default GTF: Not Supported

   Color Characteristics

      [EE 91 A3 54 4C 99 26 0F 50 54]
      Red   = (0.640, 0.330)
      Green = (0.300, 0.600)
      Blue  = (0.150, 0.060)
      White = (0.312, 0.329)

   Established Timings I

      [A5]
      720 x 400 @ 70 Hz (IBM, VGA):       Supported
      720 x 400 @ 88 Hz (IBM, XGA2):      Not Supported
      640 x 480 @ 60 Hz (IBM, VGA):       Supported
      640 x 480 @ 67 Hz (Apple, Mac II):  Not Supported
      640 x 480 @ 72 Hz (VESA):           Not Supported
      640 x 480 @ 75 Hz (VESA):           Supported
      800 x 600 @ 56 Hz (VESA):           Not Supported
      800 x 600 @ 60 Hz (VESA):           Supported

   Established Timings II

      [4B]
      800 x 600 @ 72 Hz (VESA):           Not Supported
      800 x 600 @ 75 Hz (VESA):           Supported
      832 x 624 @ 75 Hz (Apple, Mac II):  Not Supported
      1024 x 768 @ 87 Hz(I) (IBM):        Not Supported
      1024 x 768 @ 60 Hz (VESA):          Supported
      1024 x 768 @ 70 Hz (VESA):          Not Supported
      1024 x 768 @ 75 Hz (VESA):          Supported
      1280 x 1024 @ 75 Hz (VESA):         Supported

   Manufacturer's Timings

      [85]
      1152 x 870 @ 75 Hz (Apple, Mac II): Supported
      Reserved 6: 0
      Reserved 5: 0
      Reserved 4: 0
      Reserved 3: 0
      Reserved 2: 1
      Reserved 1: 0
      Reserved 0: 1

   Standard Timing Identification #1

      [D1 C0]
      1920 x 1080 @ 60 Hz (16:9)

   Standard Timing Identification #2

      [01 02]
      256 x 160 @ 62 Hz (16:10)

   Standard Timing Identification #3

      [81 80]
      1280 x 1024 @ 60 Hz (5:4)

   Standard Timing Identification #4

      [61 4F]
      1024 x 768 @ 75 Hz (4:3)

   Standard Timing Identification #5

      [01 01]
      Unused

   Standard Timing Identification #6

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #7

      [01 01]
      Unused

   Standard Timing Identification #8

      [FF FF]
      2288 x 1287 @ 123 Hz (16:9)

   Detailed Timing Description #1

      [00 01 80 18 71 38 2D 43 58 2C 45 E7 52 0E 21 02 03 9E]
      Pixel Clock: 2.560 MHz
      Horizontal Active: 1920 pixels
      Horizontal Blanking: 280 pixels
      Vertical   Active: 1080 pixels
      Vertical   Blanking: 813 pixels
      Horizontal Sync Offset: 856 pixels
      Horizontal Sync Pulse Width: 556 pixels
      Vertical   Sync Offset: 20 pixels
      Vertical   Sync Pulse Width: 53 pixels
      Horizontal Image Size: 594 mm
      Vertical   Image Size: 270 mm
      Horizontal Border: 2
      Vertical   Border: 3
      Interlaced
      Normal display, no stereo
      Digital separate
      Vertical  Polarity: Positive
      Horizontal Polarity: Positive

   Detailed Timing Description #2

      [00 00 00 FC 00 4C 61 62 20 64 69 73 70 6C 61 79 20 37]
      Monitor Descriptor Block
         Monitor Name: Lab display 7


   Detailed Timing Description #3

      [00 00 00 FD 00 32 4B 1E 53 11 00 0A 20 20 20 20 20 20]
      Monitor Descriptor Block
         Monitor Range Limits
            Min. Vertical   rate: 50 Hz
            Max. Vertical   rate: 75 Hz
            Min. Horizontal rate: 30 kHz
            Max. Horizontal rate: 83 kHz
            Max. Supported Pixel Clock: 170 MHz

   Detailed Timing Description #4

      [00 00 00 FF 00 53 4E 2D 30 30 30 31 0A 61 62 63 64 65]
      Monitor Descriptor Block
         Monitor Serial Number: SN-0001
abcde


   [01]
   Extension Flag: 1 extension blocks follow

   [BF]
   Normal Checksum)");
}

TEST(EdidReport, ofADigitalMonitorReadsLikeThis)
{
  EdidBlock block;
  block
      .set(0, {0x01}) // no header of such a block
      .set(8, {0x00, 0x00, 0xCD, 0xAB, 0x01, 0x00, 0x00, 0x80, 0xFF, 0xFF, 0x02, 0x13})
      .set(20, {0x81, 0x00, 0x00, 0xFF, 0x11})
      .set(25, {0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x80, 0x7F, 0xFF, 0xFF})
      .set(54, {0x01, 0x00})
      .set(71, {0x60})
      .set(75, {0xFE, 0x00})
      .set(77, "ASCII string.")
      .set(93, {0x0F})
      .set(111, {0xFB})
      .set(126, {0xFF, 0x00});
  EXPECT_EQ(block.report(), R"(Raw data (hexadecimal):

  01  FF  FF  FF  FF  FF  FF  00  00  00  CD  AB  01  00  00  80
  FF  FF  02  13  81  00  00  FF  11  FF  FF  FF  FF  00  00  80
  7F  FF  FF  00  00  00  00  00  00  00  00  00  00  00  00  00
  00  00  00  00  00  00  01  00  00  00  00  00  00  00  00  00
  00  00  00  00  00  00  00  60  00  00  00  FE  00  41  53  43
  49  49  20  73  74  72  69  6E  67  2E  00  00  00  0F  00  00
  00  00  00  00  00  00  00  00  00  00  00  00  00  00  00  FB
  00  00  00  00  00  00  00  00  00  00  00  00  00  00  FF  00

Decoded data -- corresponding raw data shown as hexadecimal in []:

   [01 FF FF FF FF FF FF 00]
   Invalid Header! Expected: 00 FF FF FF FF FF FF 00

   Vendor/Product Identification

      [00 00]
      ID Manufacturer Name (EISA 3-character code) = @@@

      [CD AB]
      ID Product Code (hexadecimal)                = ABCD

      [01 00 00 80]
      ID Serial Number (hexadecimal)               = 80000001

      [FF FF]
      Manufactured: Week 255 of 2245

   [02 13]
   EDID Version 2.19

   Basic Display Parameters / Features

      [81]
      Video Input Definition:
         Digital Input
         VESA DFP 1.x TMDS CRGB
         1 pixel/clock
         Up to 8 bits/color MSB aligned
         DE active high

      [00]
      Max. Horizontal Image Size = 0.000 cm or 0.000 in

      [00]
      Max. Vertical   Image Size = 0.000 cm or 0.000 in

      Max. Diagonal   Image Size = 0.000 cm or 0.000 in (calculated)

      [FF]
      Display Transfer Characteristic (Gamma) = Not Defined Here

      [11]
      DPMS Standby: Not Supported
      DPMS Suspend: Not Supported
      DPMS Active Off/Very Low Power: Not Supported
      Display Type: Non-RGB multicolor display (e.g. RGY)
      Color Space: Non-Standard
      Preferred Timing Mode: Not Defined in Detailed Timing Block #1
      Default GTF: Supported

   Color Characteristics

      [FF FF FF FF 00 00 80 7F FF FF]
      Red   = (0.999, 0.999)
      Green = (0.003, 0.003)
      Blue  = (0.503, 0.499)
      White = (0.999, 0.999)

   Established Timings I

      [00]
      720 x 400 @ 70 Hz (IBM, VGA):       Not Supported
      720 x 400 @ 88 Hz (IBM, XGA2):      Not Supported
      640 x 480 @ 60 Hz (IBM, VGA):       Not Supported
      640 x 480 @ 67 Hz (Apple, Mac II):  Not Supported
      640 x 480 @ 72 Hz (VESA):           Not Supported
      640 x 480 @ 75 Hz (VESA):           Not Supported
      800 x 600 @ 56 Hz (VESA):           Not Supported
      800 x 600 @ 60 Hz (VESA):           Not Supported

   Established Timings II

      [00]
      800 x 600 @ 72 Hz (VESA):           Not Supported
      800 x 600 @ 75 Hz (VESA):           Not Supported
      832 x 624 @ 75 Hz (Apple, Mac II):  Not Supported
      1024 x 768 @ 87 Hz(I) (IBM):        Not Supported
      1024 x 768 @ 60 Hz (VESA):          Not Supported
      1024 x 768 @ 70 Hz (VESA):          Not Supported
      1024 x 768 @ 75 Hz (VESA):          Not Supported
      1280 x 1024 @ 75 Hz (VESA):         Not Supported

   Manufacturer's Timings

      [00]
      1152 x 870 @ 75 Hz (Apple, Mac II): Not Supported
      Reserved 6: 0
      Reserved 5: 0
      Reserved 4: 0
      Reserved 3: 0
      Reserved 2: 0
      Reserved 1: 0
      Reserved 0: 0

   Standard Timing Identification #1

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #2

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #3

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #4

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #5

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #6

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #7

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Standard Timing Identification #8

      [00 00]
      248 x 155 @ 60 Hz (16:10)

   Detailed Timing Description #1

      [01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 60]
      Pixel Clock: 0.010 MHz
      Horizontal Active: 0 pixels
      Horizontal Blanking: 0 pixels
      Vertical   Active: 0 pixels
      Vertical   Blanking: 0 pixels
      Horizontal Sync Offset: 0 pixels
      Horizontal Sync Pulse Width: 0 pixels
      Vertical   Sync Offset: 0 pixels
      Vertical   Sync Pulse Width: 0 pixels
      Horizontal Image Size: 0 mm
      Vertical   Image Size: 0 mm
      Horizontal Border: 0
      Vertical   Border: 0
      Non-Interlaced
      Stereoscopic display
      Analog composite
      Serrate
      Sync-on-Green

   Detailed Timing Description #2

      [00 00 00 FE 00 41 53 43 49 49 20 73 74 72 69 6E 67 2E]
      Monitor Descriptor Block
         ASCII String
            ASCII string.


   Detailed Timing Description #3

      [00 00 00 0F 00 00 00 00 00 00 00 00 00 00 00 00 00 00]
      Monitor Descriptor Block
         Defined by Manufacturer

   Detailed Timing Description #4

      [00 00 00 FB 00 00 00 00 00 00 00 00 00 00 00 00 00 00]
      Monitor Descriptor Block
         Color Point Data

   [FF]
   Extension Flag: 255 extension blocks follow

   [00]
   Invalid Checksum! Expected (hex): B9)");
}
