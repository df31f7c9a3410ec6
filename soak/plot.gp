# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# Run in the folder with the samples of scripts/soak.
set terminal pngcairo size 1400,1000 background rgb 'white' font 'DejaVu Sans,14'
set output 'soak.png'
set datafile separator tab
set key autotitle columnhead
samples = 'samples.tsv'
resident = '#1f6fb4'
held = '#d1600a'
heap = '#2a8a57'
objects = '#7a4fa3'
descriptors = '#b03a5b'
quiet = '#666666'

stats samples using ($2/60) name 'TIME' nooutput
stats samples using (strcol(1) eq 'bound' ? $2/60 : NaN) name 'BOUND' nooutput
stats samples using ($3/1024) name 'MOST' nooutput
stats samples using (strcol(1) eq 'losing' ? $3/1024 : NaN) name 'RESIDENT' nooutput
stats samples using (strcol(1) eq 'losing' ? $4/1024 : NaN) name 'HELD' nooutput
stats samples using (strcol(1) eq 'losing' ? $5/1024 : NaN) name 'HEAP' nooutput
stats samples using 6 name 'DESCRIPTORS' nooutput
stats samples using 7 name 'OBJECTS' nooutput

set border 3 linecolor rgb '#999999'
set tics nomirror textcolor rgb '#444444'
set grid ytics linetype 1 linecolor rgb '#e4e4e4'
set xrange [0:TIME_max]
set lmargin 9
set rmargin 21
unset key
set arrow 1 from BOUND_max, graph 0 to BOUND_max, graph 1 nohead linecolor rgb '#999999' dashtype 2

# The name of each line is at its end, in its colour.
set multiplot
set origin 0, 0.36
set size 1, 0.64
set tmargin 4
set bmargin 1
set label 6 'What the process holds at rest' at graph 0, graph 1.07 font ',19'
set ylabel 'MiB'
set format x ''
set yrange [0:MOST_max * 1.2]
set label 1 'bound all the time' at BOUND_max / 2, graph 0.96 center textcolor rgb quiet
set label 2 'losing its window' at (BOUND_max + TIME_max) / 2, graph 0.96 center textcolor rgb quiet
set label 3 'resident, with code' at graph 1.012, first RESIDENT_mean textcolor rgb resident
set label 4 'memory held' at graph 1.012, first (HELD_mean + MOST_max * 0.01) textcolor rgb held
set label 5 'heap in use' at graph 1.012, first (HEAP_mean - MOST_max * 0.01) textcolor rgb heap
plot samples using ($2/60):($3/1024) with lines linewidth 1.5 linecolor rgb resident, \
     samples using ($2/60):($4/1024) with lines linewidth 2 linecolor rgb held, \
     samples using ($2/60):($5/1024) with lines linewidth 2 linecolor rgb heap

set origin 0, 0
set size 1, 0.36
set tmargin 1
set bmargin 4
unset label
set xlabel 'minutes'
set ylabel 'number'
set format x '%g'
set yrange [0:OBJECTS_max * 1.25]
set label 3 'GL objects' at graph 1.012, first OBJECTS_mean textcolor rgb objects
set label 4 'file descriptors' at graph 1.012, first DESCRIPTORS_mean textcolor rgb descriptors
plot samples using ($2/60):7 with lines linewidth 2 linecolor rgb objects, \
     samples using ($2/60):6 with lines linewidth 2 linecolor rgb descriptors
unset multiplot
