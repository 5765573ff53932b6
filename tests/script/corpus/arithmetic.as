// versions: 5-8
// Operators of numbers, their precedence and associativity, literals.
trace(1 + 2 * 3);            //= 7
trace((1 + 2) * 3);          //= 9
trace(10 - 4 - 3);           //= 3
trace(100 / 10 / 5);         //= 2
trace(7 % 4);                //= 3
trace(-7 % 4);               //= -3
a = 7; b = 4;
trace(a + b); //= 11
trace(a - b); //= 3
trace(a * b); //= 28
trace(a / b); //= 1.75
trace(a % b); //= 3
trace(-a);    //= -7
trace(+"12" + 1);  //= 13
trace(- -a);  //= 7
trace(2 * a - 12 / b + a % 3);  //= 12
trace(a & b | 8);      //= 12
trace(a ^ b);          //= 3
trace(~a);             //= -8
trace(a << 2);         //= 28
trace(-a >> 1);        //= -4
trace(-1 >>> 28);      //= 15
trace(-a >>> 28);      //= 15
trace(1 + 2 << 1);     //= 6
trace(a & 3 == 3);     //= 1
trace(0xff);           //= 255
trace(0x7FFFFFFF);     //= 2147483647
trace(017);            //= 15
trace(1.5e3);          //= 1500
trace(1e-2);           //= 0.01
trace(.5 + 0.25);      //= 0.75
trace(0.1);            //= 0.1
trace(123456789012);   //= 123456789012
trace(1 / 0);          //= Infinity
zero = 0;
trace(-1 / zero);      //= -Infinity
trace(zero / zero);    //= NaN
x = 5;
x += 3; trace(x);   //= 8
x -= 2; trace(x);   //= 6
x *= 5; trace(x);   //= 30
x /= 4; trace(x);   //= 7.5
x %= 4; trace(x);   //= 3.5
x = 12;
x &= 10; trace(x);  //= 8
x |= 3; trace(x);   //= 11
x ^= 1; trace(x);   //= 10
x <<= 3; trace(x);  //= 80
x >>= 2; trace(x);  //= 20
x = -1; x >>>= 30; trace(x);  //= 3
i = 5;
trace(i++); //= 5
trace(i);   //= 6
trace(++i); //= 7
trace(i--); //= 7
trace(--i); //= 5
trace(i++ + ++i); //= 12
s = "7";
trace(s++); //= 7
trace(s);   //= 8
p = q = r = 4;
trace(p + q + r); //= 12
trace((p = 9) + p); //= 18
trace((1, 2, p)); //= 9
trace(p -= 2);    //= 7
trace(int(7.9)); //= 7
trace(int(-7.9)); //= -7
minus = -1;
trace((-1 >>> 0) == (minus >>> 0)); //= true
