# Run in the folder with the results of scripts/bench.
set terminal svg size 800,500 dynamic background rgb 'white'
set datafile separator tab
set logscale xy
set grid
set key top left

set output 'bench-text.svg'
set title 'Cost of a text against its length'
set xlabel 'units'
set ylabel 'nanoseconds of processor time a call'
plot 'bench-text.dat' using 1:2 with linespoints title 'library, no driver', \
     '' using 1:3 with linespoints title 'by hand, no driver', \
     '' using 1:4 with linespoints title 'library', \
     '' using 1:5 with linespoints title 'by hand'

# A short run measures no fonts.
if (system('wc -l <bench-font.dat') + 0 < 2) exit

set output 'bench-font.svg'
set title 'Cost against the number of characters of the font'
set xlabel 'characters'
set key center right
plot 'bench-font.dat' using 1:2 with linespoints title 'drawing 30 units, no driver', \
     '' using 1:3 with linespoints title 'loading, no driver', \
     '' using 1:4 with linespoints title 'FreeType alone, two passes'
