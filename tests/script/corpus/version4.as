// versions: 4-8
// The language of version 4, which later versions still speak.
x = 5; y = "abc";
trace(x + 2);        //= 7
trace(x * 3 - 1);    //= 14
trace(x / 2);        //= 2.5
trace(y add "def");  //= abcdef
trace(y eq "abc");   //=4-4 1
                     //=5+ true
trace(x < 6);        //=4-4 1
                     //=5+ true
trace(x > 6);        //=4-4 0
                     //=5+ false
trace(x >= 5 and x <= 5); //=4-4 1
                     //=5+ true
trace(not x);        //=4-4 0
                     //=5+ false
if (x == 5 && y eq "abc") trace("both"); else trace("not both"); //= both
if (x > 5 or y ne "abc") { trace("wrong"); } else if (x <> 5) trace("wrong"); else { trace("neither"); } //= neither
for (i = 0; i < 3; i++) { if (i == 1) continue; trace(i); } //= 0
                     //= 2
while (i > 0) { --i; if (i == 1) break; }
trace(i);            //= 1
do { i += 2; } while (i < 6);
trace(i);            //= 7
switch (x) { case 4: trace("four"); case 5: trace("five"); break; default: trace("default"); } //= five
switch (y) { case "x": trace("x"); break; case "abc": trace("text"); } //= text
trace(x > 3 ? "more" : "less"); //= more
/clip:v = 3;
trace(/clip:v + 1);  //= 4
/:w = 8;
trace(w);            //= 8
trace(eval("/clip:v")); //= 3
set("na" add "me", 9); trace(name); //= 9
tellTarget("/clip") { nextFrame(); u = 4; }
trace(/clip:u);      //= 4
trace(getProperty("/clip", _currentframe)); //= 2
setProperty("/clip", _x, 30);
trace(getProperty("/clip", _x)); //= 30
trace(getProperty("/clip", _name)); //= clip
/clip/gotoAndStop(4);
trace(getProperty("/clip", _currentframe)); //= 4
trace(length("abcd")); //= 4
trace(substring("abcd", 2, 2)); //= bc
trace(chr(66) add ord("A")); //= B65
trace(int(3.7));     //= 3
trace(mblength("ab") add mbsubstring("abc", 2, 1) add mbchr(67) add mbord("D")); //= 2bC68
trace(random(1));    //= 0
trace(x++);          //= 5
trace(++x);          //= 7
z = x = 3; trace(z + x); //= 6
x += 4; x -= 1; x *= 6; x /= 4; trace(x); //= 9
trace(-x + 10);      //= 1
duplicateMovieClip("/clip", "copy", 2);
trace(getProperty("/copy", _name)); //= copy
removeMovieClip("/copy");
ifFrameLoaded(2) { trace("loaded"); } //= loaded
fscommand("TamberTrace", "four"); //! TamberTrace|four
fscommand("TamberTrace", x); //! TamberTrace|9
c = 2;
if (c gt 1 and "b" ge "a" and "a" le "b") trace("ordered"); //= ordered
trace(100000);       //= 100000
trace(0.1 + 0.2);    //= 0.3
trace(1 / 3);        //= 0.333333333333333
third = 1 / 3; trace(third * 3); //= 1
trace(0 * -1);       //= 0
trace(-123456789012345 add "," add 0.00001 add "," add 1e15 add "," add 1 / 1000000); //= -123456789012345,0.00001,1e+15,1e-6
w = 0; n = 3;
x = 0 && (w = 1); y = n && (w = 2); trace(x && 1); //= 0
trace(w);            //= 2
trace((n == 3 || (w = 4)) add "," add w); //=4-4 1,2
                     //=5+ true,2
trace(n > 5 && (w = 5) || n < 2 && (w = 6) || n == 3 && w == 2); //=4-4 1
                     //=5+ true
n == 3 && (w = 7); n == 3 || (w = 8); trace(w); //= 7
0 and (w = 9); trace(w); //= 9
trace(1 + (n && w) * 2); //=4-4 3
                     //=5+ 19
call("f3");          //= frame 3
var /clip:told = "t", _root.u = 5, clip/../:w;
trace(/clip:told add u add _root.u); //= t55
//@ frame 2
trace("frame 2");    //= frame 2
gotoAndPlay("f4");
//@ frame 3
trace("frame 3");
//@ frame 4
trace("frame 4");    //= frame 4
tellTarget("/clip") { ../clip/gotoAndStop(2); ../clip/nextFrame(); }
trace(getProperty("/clip", _currentframe)); //= 3
