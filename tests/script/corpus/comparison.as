// versions: 5-8
// Comparisons, logic that stops early, conditions.
a = 3; b = 5;
trace(a < b);  //= true
trace(a > b);  //= false
trace(a <= 3); //= true
trace(a >= 4); //= false
trace(a == 3); //= true
trace(a != 3); //= false
trace(a <> 4); //= true
trace("3" == 3);     //= true
trace("abc" == "abc"); //= true
trace("B" < "a");    //= true
trace("10" < "9");   //= true
trace("10" < 9);     //= false
trace(null == undefined); //= true
trace(!a);     //= false
trace(!(a > b)); //= true
function yes(n) { trace("yes " + n); return true; }
function no(n) { trace("no " + n); return false; }
trace(no(1) && yes(2)); //= no 1
                        //= false
trace(yes(3) && no(4)); //= yes 3
                        //= no 4
                        //= false
trace(yes(5) || no(6)); //= yes 5
                        //= true
trace(no(7) || yes(8)); //= no 7
                        //= yes 8
                        //= true
trace(0 || "right");    //= right
z = 0;
trace(z || "right");    //= right
trace(z && "left");     //= 0
trace(a && b);          //= 5
trace(a || b);          //= 3
if (yes(9) && no(10) || yes(11)) trace("in"); //= yes 9
                        //= no 10
                        //= yes 11
                        //= in
if (!(no(12) || no(13))) trace("neither"); //= no 12
                        //= no 13
                        //= neither
if (a > b) trace("greater"); else if (a == b) trace("equal"); else trace("less"); //= less
trace(a > b ? "x" : a < b ? "y" : "z"); //= y
trace((a < b ? 1 : 2) + 10); //= 11
if (a != 3) trace("wrong"); else trace("three"); //= three
trace(a > b == false); //= true
trace(a + 1 > b - 2 && a < b); //= true
trace((yes(14) and no(15)) == false); //= yes 14
                        //= no 15
                        //= true
trace((no(16) or yes(17)) == true); //= no 16
                        //= yes 17
                        //= true
trace(not a); //= false
if (a = 0) trace("assigned"); else trace("zero"); //= zero
