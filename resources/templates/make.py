#!/usr/bin/env python3
"""Writes the fifteen empty documents that new files are copied from.

Usage: make.py [folder]     (default: ../bundle)
Only the standard library is used, and every run writes the same bytes.
"""

import io
import os
import struct
import sys
import zipfile

XML = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
PACKAGE = 'http://schemas.openxmlformats.org/package/2006'
OFFICE = 'http://schemas.openxmlformats.org/officeDocument/2006/relationships'
DRAWING = 'http://schemas.openxmlformats.org/drawingml/2006/main'
WORD = 'http://schemas.openxmlformats.org/wordprocessingml/2006/main'
SHEET = 'http://schemas.openxmlformats.org/spreadsheetml/2006/main'
SLIDE = 'http://schemas.openxmlformats.org/presentationml/2006/main'
FORMAT = 'application/vnd.openxmlformats-officedocument.'


def zipped(parts):
    """A ZIP archive of (name, text) pairs: dated the same, and stored, because compressors differ."""
    target = io.BytesIO()
    with zipfile.ZipFile(target, 'w') as archive:
        for name, content in parts:
            entry = zipfile.ZipInfo(name, (1980, 1, 1, 0, 0, 0))
            entry.compress_type = zipfile.ZIP_STORED
            entry.create_system = 0
            entry.external_attr = 0
            archive.writestr(entry, content)
    return target.getvalue()


def contentTypes(overrides):
    parts = ''.join(f'<Override PartName="/{name}" ContentType="{FORMAT}{kind}+xml"/>' for name,
                    kind in overrides)
    return (f'{XML}<Types xmlns="{PACKAGE}/content-types">'
            '<Default Extension="rels" '
            'ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
            f'<Default Extension="xml" ContentType="application/xml"/>{parts}</Types>')


def relationships(targets):
    """Relationships rId1, rId2, ... for (type, target) pairs."""
    rows = ''.join(f'<Relationship Id="rId{number}" Type="{OFFICE}/{kind}" Target="{target}"/>'
                   for number, (kind, target) in enumerate(targets, 1))
    return f'{XML}<Relationships xmlns="{PACKAGE}/relationships">{rows}</Relationships>'


def wordDocument():
    document = (f'{XML}<w:document xmlns:w="{WORD}"><w:body><w:p/><w:sectPr><w:pgSz w:w="11906" w:h="16838"/>'
                '<w:pgMar w:top="1440" w:right="1440" w:bottom="1440" w:left="1440" w:header="720" '
                'w:footer="720" '
                'w:gutter="0"/></w:sectPr></w:body></w:document>')
    styles = (f'{XML}<w:styles xmlns:w="{WORD}"><w:docDefaults><w:rPrDefault><w:rPr>'
              '<w:rFonts w:ascii="Calibri" w:hAnsi="Calibri" w:cs="Calibri"/><w:sz w:val="24"/>'
              '<w:szCs w:val="24"/>'
              '</w:rPr></w:rPrDefault><w:pPrDefault/></w:docDefaults>'
              '<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/>'
              '<w:qFormat/>'
              '</w:style></w:styles>')
    return zipped((
        ('[Content_Types].xml', contentTypes((('word/document.xml', 'wordprocessingml.document.main'),
                                              ('word/styles.xml', 'wordprocessingml.styles')))),
        ('_rels/.rels', relationships((('officeDocument', 'word/document.xml'),))),
        ('word/document.xml', document),
        ('word/_rels/document.xml.rels', relationships((('styles', 'styles.xml'),))),
        ('word/styles.xml', styles)))


def workbook():
    book = (f'{XML}<workbook xmlns="{SHEET}" xmlns:r="{OFFICE}"><sheets>'
            '<sheet name="Sheet1" sheetId="1" r:id="rId1"/>'
            '</sheets></workbook>')
    sheet = f'{XML}<worksheet xmlns="{SHEET}"><sheetData/></worksheet>'
    styles = (f'{XML}<styleSheet xmlns="{SHEET}"><fonts count="1"><font><sz val="12"/><name val="Calibri"/>'
              '<family val="2"/></font></fonts>'
              '<fills count="2"><fill><patternFill patternType="none"/></fill>'
              '<fill><patternFill patternType="gray125"/></fill></fills>'
              '<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>'
              '<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>'
              '<cellXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/></cellXfs>'
              '<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles>'
              '</styleSheet>')
    return zipped((
        ('[Content_Types].xml', contentTypes((('xl/workbook.xml', 'spreadsheetml.sheet.main'),
                                              ('xl/worksheets/sheet1.xml', 'spreadsheetml.worksheet'),
                                              ('xl/styles.xml', 'spreadsheetml.styles')))),
        ('_rels/.rels', relationships((('officeDocument', 'xl/workbook.xml'),))),
        ('xl/workbook.xml', book),
        ('xl/_rels/workbook.xml.rels', relationships((('worksheet', 'worksheets/sheet1.xml'),
                                                      ('styles', 'styles.xml')))),
        ('xl/worksheets/sheet1.xml', sheet),
        ('xl/styles.xml', styles)))


def theme():
    def colour(name, value):
        return f'<a:{name}><a:srgbClr val="{value}"/></a:{name}>'
    colours = ''.join(colour(name, value) for name, value in (
        ('dk1', '000000'), ('lt1', 'FFFFFF'), ('dk2', '445468'), ('lt2', 'E8ECF0'), ('accent1', '2A72D4'),
        ('accent2', 'E0641C'), ('accent3', '2A964C'), ('accent4', 'D98A0B'), ('accent5', '8150CF'),
        ('accent6', '12897E'), ('hlink', '2A72D4'), ('folHlink', '8150CF')))
    font = '<a:latin typeface="Calibri"/><a:ea typeface=""/><a:cs typeface=""/>'
    fill = '<a:solidFill><a:schemeClr val="phClr"/></a:solidFill>'
    lines = ''.join(f'<a:ln w="{width}">{fill}</a:ln>' for width in (6350, 12700, 19050))
    effect = '<a:effectStyle><a:effectLst/></a:effectStyle>'
    return (f'{XML}<a:theme xmlns:a="{DRAWING}" name="Plain"><a:themeElements>'
            f'<a:clrScheme name="Plain">{colours}</a:clrScheme>'
            f'<a:fontScheme name="Plain"><a:majorFont>{font}</a:majorFont>'
            f'<a:minorFont>{font}</a:minorFont></a:fontScheme>'
            f'<a:fmtScheme name="Plain"><a:fillStyleLst>{fill * 3}</a:fillStyleLst>'
            f'<a:lnStyleLst>{lines}</a:lnStyleLst>'
            f'<a:effectStyleLst>{effect * 3}</a:effectStyleLst>'
            f'<a:bgFillStyleLst>{fill * 3}</a:bgFillStyleLst>'
            '</a:fmtScheme></a:themeElements></a:theme>')


def presentation():
    names = f'xmlns:a="{DRAWING}" xmlns:r="{OFFICE}" xmlns:p="{SLIDE}"'

    def placeholder(number, name, kind, frame):
        x, y, width, height = frame
        return (f'<p:sp><p:nvSpPr><p:cNvPr id="{number}" name="{name}"/><p:cNvSpPr>'
                '<a:spLocks noGrp="1"/></p:cNvSpPr>'
                f'<p:nvPr><p:ph type="{kind}"/></p:nvPr></p:nvSpPr><p:spPr><a:xfrm><a:off x="{x}" y="{y}"/>'
                f'<a:ext cx="{width}" cy="{height}"/></a:xfrm><a:prstGeom prst="rect">'
                '<a:avLst/></a:prstGeom></p:spPr>'
                '<p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:endParaRPr lang="en-US"/></a:p></p:txBody></p:sp>')

    def tree(shapes):
        return ('<p:spTree><p:nvGrpSpPr><p:cNvPr id="1" name=""/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr>'
                '<p:grpSpPr>'
                '<a:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/><a:chOff x="0" y="0"/>'
                '<a:chExt cx="0" cy="0"/>'
                f'</a:xfrm></p:grpSpPr>{shapes}</p:spTree>')

    titleFrame = (914400, 2130425, 10363200, 1470025)
    bodyFrame = (914400, 3886200, 10363200, 1752600)
    masterShapes = placeholder(2, 'Title', 'title', titleFrame) + placeholder(3, 'Text', 'body', bodyFrame)
    slideShapes = placeholder(2, 'Title', 'ctrTitle', titleFrame) + placeholder(3, 'Subtitle', 'subTitle',
                                                                                bodyFrame)
    white = '<p:bg><p:bgPr><a:solidFill><a:schemeClr val="bg1"/></a:solidFill><a:effectLst/></p:bgPr></p:bg>'
    map_ = ('<p:clrMap bg1="lt1" tx1="dk1" bg2="lt2" tx2="dk2" accent1="accent1" accent2="accent2" '
            'accent3="accent3" '
            'accent4="accent4" accent5="accent5" accent6="accent6" hlink="hlink" folHlink="folHlink"/>')
    inherit = '<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>'

    def level(size, align):
        return (f'<a:lvl1pPr algn="{align}"><a:buNone/><a:defRPr sz="{size}"><a:solidFill>'
                '<a:schemeClr val="tx1"/>'
                '</a:solidFill><a:latin typeface="+mn-lt"/></a:defRPr></a:lvl1pPr>')
    textStyles = (f'<p:txStyles><p:titleStyle>{level(4400, "ctr")}</p:titleStyle>'
                  f'<p:bodyStyle>{level(2800, "ctr")}</p:bodyStyle>'
                  f'<p:otherStyle>{level(1800, "l")}</p:otherStyle>'
                  '</p:txStyles>')
    deck = (f'{XML}<p:presentation {names}><p:sldMasterIdLst><p:sldMasterId id="2147483648" r:id="rId1"/>'
            '</p:sldMasterIdLst><p:sldIdLst><p:sldId id="256" r:id="rId2"/></p:sldIdLst>'
            '<p:sldSz cx="12192000" cy="6858000"/><p:notesSz cx="6858000" cy="9144000"/></p:presentation>')
    master = (f'{XML}<p:sldMaster {names}><p:cSld>{white}{tree(masterShapes)}</p:cSld>{map_}'
              f'<p:sldLayoutIdLst><p:sldLayoutId id="2147483649" r:id="rId1"/></p:sldLayoutIdLst>{textStyles}'
              '</p:sldMaster>')
    layout = (f'{XML}<p:sldLayout {names} type="title" preserve="1">'
              f'<p:cSld name="Title Slide">{tree(slideShapes)}'
              f'</p:cSld>{inherit}</p:sldLayout>')
    slide = f'{XML}<p:sld {names}><p:cSld>{tree(slideShapes)}</p:cSld>{inherit}</p:sld>'
    return zipped((
        ('[Content_Types].xml', contentTypes((
            ('ppt/presentation.xml', 'presentationml.presentation.main'),
            ('ppt/slideMasters/slideMaster1.xml', 'presentationml.slideMaster'),
            ('ppt/slideLayouts/slideLayout1.xml', 'presentationml.slideLayout'),
            ('ppt/slides/slide1.xml', 'presentationml.slide'),
            ('ppt/theme/theme1.xml', 'theme')))),
        ('_rels/.rels', relationships((('officeDocument', 'ppt/presentation.xml'),))),
        ('ppt/presentation.xml', deck),
        ('ppt/_rels/presentation.xml.rels', relationships((('slideMaster', 'slideMasters/slideMaster1.xml'),
                                                           ('slide', 'slides/slide1.xml'),
                                                           ('theme', 'theme/theme1.xml')))),
        ('ppt/slideMasters/slideMaster1.xml', master),
        ('ppt/slideMasters/_rels/slideMaster1.xml.rels', relationships((
            ('slideLayout', '../slideLayouts/slideLayout1.xml'), ('theme', '../theme/theme1.xml')))),
        ('ppt/slideLayouts/slideLayout1.xml', layout),
        ('ppt/slideLayouts/_rels/slideLayout1.xml.rels', relationships((
            ('slideMaster', '../slideMasters/slideMaster1.xml'),))),
        ('ppt/slides/slide1.xml', slide),
        ('ppt/slides/_rels/slide1.xml.rels', relationships((('slideLayout',
                                                             '../slideLayouts/slideLayout1.xml'),))),
        ('ppt/theme/theme1.xml', theme())))


# The three Apple formats in their older form, an archive around one XML document, which the present
# applications convert when they open it.

TWO_THOUSAND_NINE = '92008102400'
APPLE = 'http://developer.apple.com/namespaces'


def pages():
    return zipped((('index.xml', (
        f'{XML}<sl:document xmlns:sl="{APPLE}/sl" xmlns:sf="{APPLE}/sf" xmlns:sfa="{APPLE}/sfa" '
        f'sl:version="{TWO_THOUSAND_NINE}" sfa:ID="SLDocument-0">'
        '<sl:publication-info><sl:kind>text</sl:kind></sl:publication-info>'
        '<sl:print-info sl:page-width="595" sl:page-height="842" sl:page-scale="1" '
        'sl:page-orientation="portrait">'
        '<sl:page-margins sl:top="72" sl:bottom="72" sl:left="72" sl:right="72"/></sl:print-info>'
        '<sf:text-storage sf:kind="body" sfa:ID="SWTextStorage-0"><sf:text-body><sf:section><sf:layout>'
        '<sf:p/>'
        '</sf:layout></sf:section></sf:text-body></sf:text-storage></sl:document>')),))


def numbers():
    return zipped((('index.xml', (
        f'{XML}<ls:document xmlns:ls="{APPLE}/ls" xmlns:sf="{APPLE}/sf" xmlns:sfa="{APPLE}/sfa" '
        f'ls:version="{TWO_THOUSAND_NINE}" sfa:ID="LSDocument-0"><ls:workspace-array>'
        '<ls:workspace ls:workspace-name="Sheet 1" sfa:ID="LSWorkspace-0"><ls:page-info><sf:layers><sf:layer>'
        '<sf:drawables><sf:tabular-info sfa:ID="SFTTabularInfo-0"><sf:geometry sfa:ID="SFAGeometry-0">'
        '<sf:naturalSize sfa:w="490" sfa:h="200"/><sf:size sfa:w="490" sfa:h="200"/>'
        '<sf:position sfa:x="0" sfa:y="0"/>'
        '</sf:geometry><sf:tabular-model sf:name="Table 1" sf:num-header-rows="0" sf:num-header-columns="0" '
        'sfa:ID="SFTTabularModel-0"><sf:grid sf:numrows="10" sf:numcols="5"><sf:columns sf:count="5">'
        + '<sf:grid-column sf:width="98" sf:nc="10"/>' * 5 + '</sf:columns><sf:rows sf:count="10">'
        + '<sf:grid-row sf:height="20" sf:nc="5"/>' * 10 + '</sf:rows><sf:datasource/></sf:grid>'
                                                           '</sf:tabular-model>'
        '</sf:tabular-info></sf:drawables></sf:layer></sf:layers></ls:page-info></ls:workspace>'
        '</ls:workspace-array>'
        '</ls:document>')),))


def keynote():
    return zipped((('index.apxl', (
        f'{XML}<key:presentation xmlns:key="{APPLE}/keynote2" xmlns:sf="{APPLE}/sf" xmlns:sfa="{APPLE}/sfa" '
        f'key:version="{TWO_THOUSAND_NINE}" sfa:ID="BGShow-0">'
        '<key:size sfa:w="1024" sfa:h="768"/><key:theme-list><key:theme key:name="Plain" sfa:ID="BGTheme-0">'
        '<key:size sfa:w="1024" sfa:h="768"/><key:master-slides>'
        '<key:master-slide key:name="Blank" sfa:ID="BGMasterSlide-0">'
        '<key:page><sf:size sfa:w="1024" sfa:h="768"/><sf:layers><sf:layer>'
        '<sf:drawables/></sf:layer></sf:layers></key:page>'
        '</key:master-slide></key:master-slides></key:theme></key:theme-list><key:slide-list>'
        '<key:slide sfa:ID="BGSlide-0"><key:master-ref sfa:IDREF="BGMasterSlide-0"/>'
        '<key:page><sf:size sfa:w="1024" sfa:h="768"/><sf:layers><sf:layer>'
        '<sf:drawables/></sf:layer></sf:layers></key:page>'
        '</key:slide></key:slide-list></key:presentation>')),))


def artwork():
    """One empty A4 page as PDF, the container that artwork files are saved in."""
    objects = (b'<< /Type /Catalog /Pages 2 0 R >>',
               b'<< /Type /Pages /Kids [3 0 R] /Count 1 >>',
               b'<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Resources << >> /Contents 4 0 R >>',
               b'<< /Length 0 >>\nstream\n\nendstream')
    content = b'%PDF-1.5\n%\xe2\xe3\xcf\xd3\n'
    offsets = []
    for number, body in enumerate(objects, 1):
        offsets.append(len(content))
        content += b'%d 0 obj\n%s\nendobj\n' % (number, body)
    table = b''.join(b'%010d 00000 n \n' % offset for offset in offsets)
    return (content + b'xref\n0 %d\n0000000000 65535 f \n%s' % (len(objects) + 1, table)
            + b'trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n' % (len(objects) + 1,
                                                                                  len(content)))


def canvas(width=1024, height=768):
    """A white flat RGB picture of 8 bits a channel, run-length coded."""
    header = struct.pack('>4sH6xHIIHH', b'8BPS', 1, 3, height, width, 8, 3)
    dots = 72 << 16
    resolution = struct.pack('>4sHHIIHHIHH', b'8BIM', 1005, 0, 16, dots, 1, 1, dots, 1, 1)
    row = b''
    left = width
    while left:
        run = min(left, 128)
        row += struct.pack('B', (257 - run) & 0xff) + b'\xff'
        left -= run
    rows = 3 * height
    return (header + struct.pack('>I', 0) + struct.pack('>I', len(resolution)) + resolution
            + struct.pack('>I', 0)
            + struct.pack('>H', 1) + struct.pack('>H', len(row)) * rows + row * rows)


RICH_TEXT = (b'{\\rtf1\\ansi\\ansicpg1252\\deff0\n{\\fonttbl\\f0\\fswiss\\fcharset0 Helvetica;}\n'
             b'\\paperw11906\\paperh16838\\margl1440\\margr1440\\margt1440\\margb1440\n\\pard\\f0\\fs24 }\n')


def templates():
    word, book, deck = wordDocument(), workbook(), presentation()
    return {
        'TXT.txt': b'',
        'RTF.rtf': RICH_TEXT,
        'XML.xml': b'<?xml version="1.0" encoding="UTF-8"?>\n<root>\n</root>\n',
        'Word.docx': word,
        'Excel.xlsx': book,
        'PPT.pptx': deck,
        'WPS_wps.wps': word,
        'WPS_et.et': book,
        'WPS_dps.dps': deck,
        'Pages.pages': pages(),
        'Numbers.numbers': numbers(),
        'Keynote.key': keynote(),
        'Ai.ai': artwork(),
        'PSD.psd': canvas(),
        'Markdown.md': b'# Title\n\n',
    }


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, '..', 'bundle')
    os.makedirs(folder, exist_ok=True)
    for name, content in templates().items():
        with open(os.path.join(folder, name), 'wb') as file:
            file.write(content)


if __name__ == '__main__':
    main()
